#include "workbench/paint/png_file.h"

#include "workbench/paint/offscreen_gui.h"

#include <png.h>

#include <csetjmp>
#include <exception>

namespace Rotavue::Workbench {

namespace {

constexpr int BitsOfAColor = 8;

// Of 9; the next ones take twice the time for a tenth of the bytes.
constexpr int Compression = 3;

// Rows between two looks whether it shall go on: at most some milliseconds.
constexpr int BetweenWords = 64;

/// The library reports a failure by a jump over the frames of its own functions, and asks for no
/// object with a destructor there.
class PngWriter {
public:
    PngWriter()
        : png_(png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, passOver)),
          info_(png_ == nullptr ? nullptr : png_create_info_struct(png_)) {}
    ~PngWriter() { png_destroy_write_struct(&png_, &info_); }
    PngWriter(const PngWriter&) = delete;
    PngWriter& operator=(const PngWriter&) = delete;

    bool write(const QImage& image, const ReadingProgress& progress) {
        if (info_ == nullptr) return false;
        if (setjmp(png_jmpbuf(png_)) != 0) return false;  // NOLINT(cert-err52-cpp)
        png_set_write_fn(png_, &file_, append, nullptr);
        begin(image);
        for (int y = 0; y < image.height(); ++y) {
            if (y % BetweenWords == 0) progress.reach(static_cast<double>(y) / image.height());
            png_write_row(png_, image.constScanLine(y));
        }
        png_write_end(png_, info_);
        return true;
    }

    const QByteArray& file() const { return file_; }

private:
    static void passOver(png_structp, png_const_charp) {}

    static void append(png_structp png, png_bytep bytes, std::size_t count) {
        try {
            static_cast<QByteArray*>(png_get_io_ptr(png))
                ->append(reinterpret_cast<const char*>(bytes), static_cast<qsizetype>(count));
            return;
        } catch (const std::exception&) {
        }
        png_error(png, "out of memory");
    }

    void begin(const QImage& image) {
        png_set_filter(png_, PNG_FILTER_TYPE_BASE, PNG_FILTER_NONE);
        png_set_compression_level(png_, Compression);
        png_set_IHDR(png_, info_, static_cast<png_uint_32>(image.width()),
                     static_cast<png_uint_32>(image.height()), BitsOfAColor, PNG_COLOR_TYPE_RGB,
                     PNG_INTERLACE_NONE, PNG_COMPRESSION_TYPE_BASE, PNG_FILTER_TYPE_BASE);
        png_set_pHYs(png_, info_, static_cast<png_uint_32>(image.dotsPerMeterX()),
                     static_cast<png_uint_32>(image.dotsPerMeterY()), PNG_RESOLUTION_METER);
        png_write_info(png_, info_);
        // A pixel of the image is a number 0xffRRGGBB.
        png_set_bgr(png_);
        png_set_filler(png_, 0, PNG_FILLER_AFTER);
    }

    QByteArray file_;
    png_structp png_;
    png_infop info_;
};

}  // namespace

QByteArray toPngFile(const QImage& image, const ReadingProgress& progress) {
    PngWriter writer;
    if (!writer.write(image, progress)) throw PaintError("no PNG file can be made");
    return writer.file();
}

}  // namespace Rotavue::Workbench

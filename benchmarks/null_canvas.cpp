#include "benchmarks/null_canvas.h"

#include "plugin/framework/host/drawing/host_brush.h"
#include "plugin/framework/host/drawing/host_font.h"
#include "plugin/framework/host/drawing/host_pen.h"

namespace Rotavue::Benchmarks {
namespace {

using namespace Meridax::Host;

/// Lives as long as the program; counts are of no interest here.
template <class Interface>
class Lasting : public Interface {
public:
    virtual ~Lasting() = default;

    void retain() noexcept final {}
    void release() noexcept final {}
    void* offer(const Guid& identifier) final {
        return identifier == Interface::Identifier ? static_cast<Interface*>(this) : nullptr;
    }
};

class Pen final : public Lasting<IHostPen> {
    void SetColor(std::uint32_t) final {}
    void SetWidth(std::int32_t) final {}
    void SetStyle(std::int32_t) final {}
};

class Brush final : public Lasting<IHostBrush> {
    void SetColor(std::uint32_t) final {}
    void SetStyle(std::int32_t) final {}
};

class Font final : public Lasting<IHostFont> {
    void SetColor(std::uint32_t) final {}
    std::int32_t GetHeight() final { return 16; }
    void SetHeight(std::int32_t) final {}
    void SetStyle(std::int32_t) final {}
    void SetOrientation(std::int32_t) final {}
};

class Canvas final : public Lasting<IHostCanvas> {
    using Int = std::int32_t;

    void LineTo(Int, Int) final {}
    void MoveTo(Int, Int) final {}
    void Ellipse(Int, Int, Int, Int) final {}
    void Rectangle(Int, Int, Int, Int) final {}
    void TextOut(Int, Int, const std::wstring&) final {}
    Ref<IHostBrush> GetBrush() final { return Ref<IHostBrush>::share(&brush_); }
    Ref<IHostPen> GetPen() final { return Ref<IHostPen>::share(&pen_); }
    Ref<IHostFont> GetFont() final { return Ref<IHostFont>::share(&font_); }
    void Arc(Int, Int, Int, Int, Int, Int, Int, Int) final {}
    Int TextWidth(const std::wstring& text) final { return 8 * static_cast<Int>(text.size()); }
    Int TextHeight(const std::wstring&) final { return 16; }
    void TextRect(Int, Int, Int, Int, const std::wstring&, std::uint32_t) final {}
    void Polygon(const std::vector<Int>&, Int) final {}

    Pen pen_;
    Brush brush_;
    Font font_;
};

}  // namespace

Ref<IHostCanvas> nullCanvas() {
    static Canvas canvas;
    return Ref<IHostCanvas>::share(&canvas);
}

}  // namespace Rotavue::Benchmarks

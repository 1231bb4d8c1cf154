#include "host_kit/session/player.h"
#include "host_kit/session/session_error.h"
#include "tests/fuzz/memory_file.h"

#include <cstdint>
#include <cstdlib>
#include <ios>
#include <ostream>
#include <streambuf>
#include <string>

namespace {

using namespace Rotavue;

/// Takes the log; a session whose log grows beyond the limit is cut off there.
class ShortLog : public std::streambuf {
public:
    const std::string& text() const { return text_; }

private:
    static constexpr std::size_t Longest = std::size_t{4} << 20;

    std::streamsize xsputn(const char* bytes, std::streamsize count) override {
        text_.append(bytes, static_cast<std::size_t>(count));
        return text_.size() > Longest ? 0 : count;
    }
    int_type overflow(int_type byte) override {
        text_ += traits_type::to_char_type(byte);
        return text_.size() > Longest ? traits_type::eof() : byte;
    }

    std::string text_;
};

/// Every call of the plug-in is a line of the log, so that its length bounds the time as well.
void play(const HostKit::Session& session) {
    ShortLog log;
    std::ostream out(&log);
    out.exceptions(std::ios::badbit);
    HostKit::Player player(session, std::make_shared<HostKit::Module>("linked"), out,
                           {.groups = HostKit::allGroups()});
    try {
        player.play();
    } catch (const std::ios::failure&) {
        return;
    }
    if (log.text().find("\"references\": 0}}") == std::string::npos) std::abort();
}

}  // namespace

/// A session file, read and played.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    try {
        play(HostKit::Session(Fuzz::textOf(data, size)));
    } catch (const HostKit::SessionError&) {
    }
    return 0;
}

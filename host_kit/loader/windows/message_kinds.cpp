#include "host_kit/loader/windows/message_kinds.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace Rotavue::HostKit {

namespace {

struct Row {
    std::uint32_t code;
    std::string_view kinds;  ///< one letter a position, as `kindOf` reads it
};

constexpr std::array Rows{Row{2, "oo"},    Row{3, "o"},     Row{8, "wii"},       Row{9, "wii"},
                          Row{10, "bwii"}, Row{11, "bwii"}, Row{12, "wii"},      Row{24, "o"},
                          Row{29, "o"},    Row{33, "oow"},  Row{34, "o"},        Row{35, "o"},
                          Row{36, "to"},   Row{37, "toi"},  Row{42, "oiiii--i"}, Row{45, "i"}};

ArgumentKind kindOf(char letter) {
    switch (letter) {
        case 'o':
            return ArgumentKind::Object;
        case 't':
            return ArgumentKind::Text;
        case 'i':
            return ArgumentKind::Integer;
        case 'w':
            return ArgumentKind::Word;
        case 'b':
            return ArgumentKind::Byte;
        default:
            return ArgumentKind::Any;
    }
}

}  // namespace

ArgumentKind argumentKind(std::uint32_t code, std::int64_t position) {
    const auto isCode = [code](const Row& row) { return row.code == code; };
    const auto row = std::find_if(Rows.begin(), Rows.end(), isCode);
    if (row == Rows.end() || position < 0) return ArgumentKind::Any;
    const auto index = static_cast<std::uint64_t>(position);
    return index < row->kinds.size() ? kindOf(row->kinds[index]) : ArgumentKind::Any;
}

}  // namespace Rotavue::HostKit

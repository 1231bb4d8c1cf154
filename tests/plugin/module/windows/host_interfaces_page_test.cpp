#include "tools/host_interfaces/page.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

namespace Rotavue::Tools {
namespace {

TEST(HostInterfacesPage, IsCurrent) {
    std::ifstream file(ROTAVUE_SOURCE_DIR "/docs/host-interfaces.md", std::ios::binary);
    std::ostringstream written;
    written << file.rdbuf();
    EXPECT_EQ(written.str(), hostInterfacesPage()) << "write it again with host_interfaces_page";
}

TEST(HostInterfacesPage, TellsWhatCrossesInASlot) {
    const std::string page = hostInterfacesPage();
    // Place 7, so slot 13; true is -1 in this one operation.
    EXPECT_NE(
        page.find("| 7 | 13 | `requestData` | LONGLONG, LONGLONG, LONG, VARIANT_BOOL (true is "
                  "-1), IHostChannelList* | |\n"),
        std::string::npos);
    EXPECT_NE(page.find("| 1 | 7 | `GetChecked` | | SHORT* |\n"), std::string::npos);
    EXPECT_NE(page.find("| 4 | 10 | `FindControl` | BSTR | IUnknown** |\n"), std::string::npos);
}

}  // namespace
}  // namespace Rotavue::Tools

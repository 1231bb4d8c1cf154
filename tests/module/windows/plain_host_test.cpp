#include "plugin/module/windows/platform_headers.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <memory>
#include <string>

/// The host in plain C, run as the program that it is.
namespace Rotavue::ModuleTest {
namespace {

struct PipeEnd {
    void operator()(FILE* pipe) const { ::_pclose(pipe); }
};

std::string outputOf(const std::wstring& command) {
    const std::unique_ptr<FILE, PipeEnd> pipe(::_wpopen(command.c_str(), L"r"));
    std::string output;
    for (int letter = std::fgetc(pipe.get()); letter != EOF; letter = std::fgetc(pipe.get()))
        output += static_cast<char>(letter);
    return output;
}

TEST(PlainHost, AttachesDrawsSavesCopiesAndGetsEveryReferenceBack) {
    const std::string output =
        outputOf(L"\"\"" ROTAVUE_PLAIN_HOST L"\" \"" ROTAVUE_MODULE_FILE L"\"\"");
    EXPECT_EQ(output.find("NOT OK"), std::string::npos) << output;
    EXPECT_NE(output.find("31 checks, 0 failed"), std::string::npos) << output;
}

TEST(PlainHost, FailsWithoutAModule) {
    const std::string output = outputOf(L"\"" ROTAVUE_PLAIN_HOST L"\" nowhere.vc");
    EXPECT_NE(output.find("1 checks, 1 failed"), std::string::npos) << output;
}

}  // namespace
}  // namespace Rotavue::ModuleTest

#include "workbench/files/import_memory.h"

#include <QSettings>

#include "tests/workbench/files/files_application.h"
#include "tests/workbench/recording/scratch_folder.h"

namespace Rotavue::Workbench {
namespace {

class ImportMemoryTest : public ScratchFolder {
protected:
    QSettings settings_{qt(at("settings.ini")), QSettings::IniFormat};
    ImportMemory memory_{settings_};
};

TEST_F(ImportMemoryTest, RemembersEachShapeByItself) {
    RememberedImport import;
    import.options.x.column = "#2";
    import.options.clearanceWidth = 0.25;
    import.askAgain = false;
    memory_.remember("table ,|a[um]|b/[um]", import);
    memory_.remember("wav 5000 3", {});
    const auto found = memory_.find("table ,|a[um]|b/[um]");
    ASSERT_TRUE(found);
    EXPECT_EQ(found->options.x.column, "#2");
    EXPECT_EQ(found->options.clearanceWidth, 0.25);
    EXPECT_FALSE(found->askAgain);
    EXPECT_TRUE(memory_.find("wav 5000 3")->askAgain);
    EXPECT_FALSE(memory_.find("wav 5000 4"));
}

TEST_F(ImportMemoryTest, ForgetsAll) {
    EXPECT_TRUE(memory_.isEmpty());
    memory_.remember("a", {});
    EXPECT_FALSE(memory_.isEmpty());
    memory_.clear();
    EXPECT_FALSE(memory_.find("a"));
    EXPECT_TRUE(memory_.isEmpty());
}

TEST_F(ImportMemoryTest, DamagedSettingsAreAsIfNothingWereRemembered) {
    memory_.remember("a", {});
    for (const QString& key : settings_.allKeys())
        if (key.endsWith("options")) settings_.setValue(key, "{\"x\": 3");
    EXPECT_FALSE(memory_.find("a"));
}

}  // namespace
}  // namespace Rotavue::Workbench

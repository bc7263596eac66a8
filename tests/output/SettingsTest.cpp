// The four settings files byte for byte, what is read from them at the start, and the forms of the
// start.
#include "output/Settings.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>

#include "OwnDirectory.h"
#include "Workbench.h"
#include "cli/HeadlessPlatform.h"
#include "mainwindow/Proof.h"
#include "output/Tips.h"
#include "platform/Files.h"
#include "view/Display.h"

namespace tessaryn {
namespace {

namespace fs = std::filesystem;
using namespace std::string_literals;

const std::string Magic = "Tessaryn 1";
const std::string NoTip = "\xFF\xFF"s;

const std::pair<const char*, std::string> Delivered[] = {
    {"DefaultDir.bin", Magic + "\0\0\0\0"s},
    {"RecentFiles.bin", Magic + "\0\0"s},
    {"UserFontSize.bin", Magic + "\x0C\0"s},
    {"UserOption.bin", "\0\0"s},
};

std::string Counted(const std::string& text) {
    return std::string{static_cast<char>(text.size()), '\0'} + text;
}

class Settings : public OwnDirectory {
  protected:
    Settings() {
        for (const auto& [file, bytes] : Delivered) Put(file, bytes);
        Put("UserOption.bin", NoTip);
    }
    std::string In(const std::string& file) const { return Path(file); }
    void Put(const std::string& file, const std::string& bytes) const {
        ReplaceFile(In(file), bytes);
    }
    std::string Get(const std::string& file) const { return ReadWholeFile(In(file)).value_or("-"); }
    // Runs a script that calls the directory DIR. "" or what went wrong.
    std::string Run(std::string script) const {
        for (auto at = script.find("DIR"); at != script.npos; at = script.find("DIR", at)) {
            script.replace(at, 3, directory_);
        }
        ScriptOptions options;
        options.settingsDir = directory_;
        options.checkDocument = true;
        return RunScript(script, "script", options).error;
    }

    const std::string directory_ = directory.string();
};

TEST_F(Settings, ChangesAreWrittenAtOnceAndComeBack) {
    EXPECT_EQ(Run("expect form StartUp\nkey Esc\nexpect no form\n"
                  "choose optLargeText\nchoose optShowTip\nchoose optSelectDir\n"
                  "expect control CurrentDefault \"\"\n"
                  "set DirectoryList \"/\"\nexpect control CurrentDefault \"/\"\n"
                  "set DirectoryList \"DIR\"\nchoose cmdContinue\nexpect no form\n"),
              "");
    EXPECT_EQ(Get("UserFontSize.bin"), Magic + "\x0E\0"s);
    EXPECT_EQ(Get("UserOption.bin"), "\0\0"s);
    EXPECT_EQ(Get("DefaultDir.bin"), Magic + "\0\0"s + Counted(directory_));

    EXPECT_EQ(Run("key Esc\nexpect form Tips\nexpect control Check1 \"true\"\nchoose Check1\n"
                  "choose cmdClose\nchoose optSelectDir\nexpect control CurrentDefault \"DIR\"\n"
                  "set DirectoryList \"/\"\nchoose cmdContinue\nchoose optOpen\n"),
              "");
    EXPECT_EQ(StmtFontSize, 14);
    EXPECT_EQ(RuleFontSize, 12);
    EXPECT_TRUE(Proof.optLargeText.Checked);
    EXPECT_FALSE(Proof.optMediumText.Checked);
    EXPECT_FALSE(Proof.optShowTip.Checked);
    EXPECT_EQ(Get("UserOption.bin"), NoTip);
    EXPECT_EQ(Headless.FileDialogs.back().InitDir, "/");
    // The shorter path stands over the first bytes of the longer one.
    EXPECT_EQ(Get("DefaultDir.bin"),
              Magic + "\0\0"s + Counted("/") + Counted(directory_).substr(3));
    EXPECT_EQ(Run("choose optSelectDir\nexpect control CurrentDefault \"/\"\nchoose cmdCancel\n"),
              "");
}

TEST_F(Settings, RecentFilesMoveUpAndTheOldestDrops) {
    std::string script;
    for (const char name : "abcdef"s) script += "save \"DIR/"s + name + ".proof\"\n";
    EXPECT_EQ(Run(script), "");
    const auto recent = [&](const char* names) {
        std::string file = Magic + "\x05\0"s;
        for (; *names != 0; ++names) file += Counted(In(*names + ".proof"s));
        return file;
    };
    EXPECT_EQ(Get("RecentFiles.bin"), recent("fedcb"));
    // The fourth comes to the head; what is there already stays.
    EXPECT_EQ(Run("key Esc\nexpect control optFile4 \"DIR/c.proof\"\nchoose optFile4\n"
                  "expect title \" Tessaryn 2.0  -  DIR/c.proof\"\n"
                  "expect control optFile1 \"DIR/c.proof\"\nchoose optSave\n"),
              "");
    EXPECT_EQ(Get("RecentFiles.bin"), recent("cfedb"));
    // With unsaved changes the question comes between; a file that is gone is refused.
    fs::remove(In("f.proof"));
    EXPECT_EQ(Run(EnterPremise("P") +
                  "choose optFile3\nexpect form SaveChanges\nchoose cmdNo\nexpect count 0\n"
                  "expect title \" Tessaryn 2.0  -  DIR/e.proof\"\n"
                  "choose optFile3\nexpect beep\n"
                  "expect status \"Open: Unable to open proof file\"\n"
                  "file \"DIR/d.proof\"\nchoose optOpen\n"
                  "expect title \" Tessaryn 2.0  -  DIR/d.proof\"\n"),
              "");
}

TEST_F(Settings, FilesOfAnotherKindAreTakenAsEmpty) {
    Put("UserFontSize.bin", "Tessaryn 2\x0E\0"s);
    Put("RecentFiles.bin", Magic + "\x06\0"s + Counted("/a"));
    Put("DefaultDir.bin", "tessaryn 1\0\0"s + Counted("/tmp"));
    EXPECT_EQ(Run("key Esc\nexpect no beep\nexpect no form\n"), "");
    EXPECT_EQ(StmtFontSize, 12);
    EXPECT_TRUE(Proof.optMediumText.Checked);
    EXPECT_FALSE(Proof.optFile1.Visible);
    EXPECT_EQ(DefaultDir, "");
    Put("UserFontSize.bin", Magic + "\x11\0"s);  // an odd size is in force and counts as Large
    EXPECT_EQ(Run("key Esc\n"), "");
    EXPECT_EQ(StmtFontSize, 17);
    EXPECT_EQ(RuleFontSize, 15);
    EXPECT_TRUE(Proof.optLargeText.Checked);
}

TEST_F(Settings, MissingAndDamagedFilesAreReportedAndDoNoHarm) {
    fs::remove(In("UserFontSize.bin"));
    Put("RecentFiles.bin", Magic + "\x02\0"s + Counted("/a"));
    Put("DefaultDir.bin", Magic + "\0\0\x09\0/tmp"s);
    EXPECT_EQ(Run("expect form Warning\n"
                  "expect control Label \"Unable to find Font Size Files\"\nchoose cmdContinue\n"
                  "expect control Label \"Unable to find Recent Files\"\nkey Esc\n"
                  "expect beep\n"
                  "expect status \"WARNING: Unable to get Recent Files or Default Directory\"\n"
                  "expect form StartUp\nkey Enter\nexpect no form\n"
                  "expect title \" Tessaryn 2.0  -  (Untitled)\"\n"
                  "choose optSmallText\nsave \"DIR/new.proof\"\nexpect no form\n"),
              "");
    EXPECT_NE(Headless.Beeps[0].find("medium size"), std::string::npos);
    EXPECT_EQ(Get("UserFontSize.bin"), Magic + "\x0A\0"s);
    EXPECT_EQ(Get("RecentFiles.bin").substr(0, 12), Magic + "\x01\0"s);
    // A script that has nothing to say to the forms of the start does not meet them.
    fs::remove(In("UserOption.bin"));
    fs::remove(In("UserFontSize.bin"));
    const std::string leftover = OldLeftover();
    EXPECT_EQ(Run(EnterPremise("P") + "expect count 1\n"), "");
    EXPECT_FALSE(fs::exists(leftover)) << "of a crash while the settings were written";
}

// Of a file of any size, what can mean something is read and written, and the rest stays.
TEST_F(Settings, FilesOfAbsurdSizeCostNoMoreThanOthers) {
    constexpr std::uintmax_t Gigabytes = std::uintmax_t{20} << 30;
    for (const auto& row : Delivered) fs::resize_file(In(row.first), Gigabytes);
    Put("DefaultDir.bin", Magic + "\0\0\xFF\xFF\0\0\0\x40"s);  // a string of a gigabyte
    fs::resize_file(In("DefaultDir.bin"), Gigabytes);
    EXPECT_EQ(Run("expect beep\nkey Esc\nchoose optLargeText\nsave \"DIR/a.proof\"\n"
                  "save \"DIR/b.proof\"\n"),
              "");
    EXPECT_EQ(Run("key Esc\nexpect control optFile1 \"DIR/b.proof\"\n"
                  "expect control optFile2 \"DIR/a.proof\"\n"),
              "");
    EXPECT_EQ(StmtFontSize, 14);
    for (const auto& row : Delivered) EXPECT_EQ(fs::file_size(In(row.first)), Gigabytes);
}

TEST_F(Settings, FilesThatCannotBeWrittenAreReported) {
    for (const auto& row : Delivered) {  // a directory can be neither read nor written
        fs::remove(In(row.first));
        fs::create_directory(In(row.first));
    }
    EXPECT_EQ(Run("choose optLargeText\nexpect message \"Unable to save user font file\"\n"
                  "choose optShowTip\nexpect beep\nexpect status \"Unable to process request\"\n"
                  "choose optSelectDir\nchoose cmdContinue\nexpect beep\nexpect form SelectDir\n"
                  "key Esc\nexpect no form\n"
                  "save \"DIR/x.proof\"\n"
                  "expect message \"Unable to save recent file name\"\n"
                  "expect title \" Tessaryn 2.0  -  DIR/x.proof\"\n"),
              "");
    EXPECT_EQ(DefaultDir, "");
    EXPECT_EQ(StmtFontSize, 14);
}

TEST_F(Settings, DirectoryIsTheProgramsOwnOrTheUsers) {
    EXPECT_EQ(FindAppPath(directory_), directory_);
    fs::remove(In("UserOption.bin"));
    const std::string config = directory_ + "/config";
    setenv("XDG_CONFIG_HOME", config.c_str(), 1);
    const std::string own = config + "/tessaryn";
    EXPECT_EQ(FindAppPath(directory_), own);
    for (const auto& [file, bytes] : Delivered) EXPECT_EQ(ReadWholeFile(own + "/" + file), bytes);
    fs::remove(own + "/UserOption.bin");  // what is gone later is reported, not made again
    EXPECT_EQ(FindAppPath(""), own);
    EXPECT_FALSE(fs::exists(own + "/UserOption.bin"));
    unsetenv("XDG_CONFIG_HOME");
}

TEST(Tips, TableIsReadFromItsStartToItsEnd) {
    EXPECT_TRUE(TipFor(0).starts_with("A typical proof cycle"));
    EXPECT_TRUE(TipFor(0.99999).starts_with("To prove an implication"));
}

}  // namespace
}  // namespace tessaryn

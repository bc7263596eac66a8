// The four settings files byte for byte, what is read from them at the start, and the forms of the
// start.
#include "output/Settings.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>

#include "cli/HeadlessPlatform.h"
#include "cli/ScriptRunner.h"
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

std::string Counted(const std::string& text) {
    return std::string{static_cast<char>(text.size()), '\0'} + text;
}

class Settings : public testing::Test {
  protected:
    Settings()
        : directory_(testing::TempDir() + "tessaryn settings ü " + std::to_string(::getpid())) {
        fs::remove_all(directory_);
        fs::create_directories(directory_);
        Put("DefaultDir.bin", Magic + "\0\0\0\0"s);
        Put("RecentFiles.bin", Magic + "\0\0"s);
        Put("UserFontSize.bin", Magic + "\x0C\0"s);
        Put("UserOption.bin", NoTip);
    }
    ~Settings() override { fs::remove_all(directory_); }

    std::string In(const std::string& file) const { return directory_ + "/" + file; }
    void Put(const std::string& file, const std::string& bytes) const {
        ReplaceFile(In(file), bytes);
    }
    std::string Get(const std::string& file) const { return ReadWholeFile(In(file)).value_or("-"); }
    // Replaces a file by a directory, which can be neither read nor written.
    void Block(const std::string& file) const {
        fs::remove_all(In(file));
        fs::create_directory(In(file));
    }
    // "" or what went wrong.
    std::string Run(const std::string& script) const {
        ScriptOptions options;
        options.settingsDir = directory_;
        options.checkDocument = true;
        return RunScript(script, "script", options).error;
    }

    std::string directory_;
};

TEST_F(Settings, ChangesAreWrittenAtOnceAndComeBack) {
    EXPECT_EQ(Run("expect form StartUp\nkey Esc\nexpect no form\n"
                  "choose optLargeText\nchoose optShowTip\n"
                  "choose optSelectDir\nexpect control CurrentDefault \"\"\n"
                  "set DirectoryList \"/\"\nexpect control CurrentDefault \"/\"\n"
                  "set DirectoryList \"" +
                  directory_ + "\"\nchoose cmdContinue\nexpect no form\n"),
              "");
    EXPECT_EQ(Get("UserFontSize.bin"), Magic + "\x0E\0"s);
    EXPECT_EQ(Get("UserOption.bin"), "\0\0"s);
    EXPECT_EQ(Get("DefaultDir.bin"), Magic + "\0\0"s + Counted(directory_));

    EXPECT_EQ(Run("key Esc\nexpect form Tips\nexpect control Check1 \"true\"\nchoose Check1\n"
                  "choose cmdClose\nchoose optSelectDir\n"
                  "expect control CurrentDefault \"" +
                  directory_ +
                  "\"\n"
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
    for (const char* name : {"a", "b", "c", "d", "e", "f"}) {
        script += "save \"" + In(name) + ".proof\"\n";
    }
    EXPECT_EQ(Run(script), "");
    const auto entry = [&](const char* name) { return Counted(In(name) + ".proof"); };
    EXPECT_EQ(Get("RecentFiles.bin"),
              Magic + "\x05\0"s + entry("f") + entry("e") + entry("d") + entry("c") + entry("b"));
    // The fourth comes to the head; what is there already stays.
    EXPECT_EQ(Run("key Esc\nexpect control optFile4 \"" + In("c.proof") +
                  "\"\nchoose optFile4\n"
                  "expect title \" Tessaryn 2.0  -  " +
                  In("c.proof") +
                  "\"\n"
                  "expect control optFile1 \"" +
                  In("c.proof") + "\"\nchoose optSave\n"),
              "");
    EXPECT_EQ(Get("RecentFiles.bin"),
              Magic + "\x05\0"s + entry("c") + entry("f") + entry("e") + entry("d") + entry("b"));
    // With unsaved changes the question comes between; a file that is gone is refused.
    fs::remove(In("f.proof"));
    EXPECT_EQ(Run("choose optPremise\nset RTB \"P\"\nchoose cmdContinue\nchoose optFile3\n"
                  "expect form SaveChanges\nchoose cmdNo\nexpect count 0\n"
                  "expect title \" Tessaryn 2.0  -  " +
                  In("e.proof") +
                  "\"\n"
                  "choose optFile3\nexpect beep\n"
                  "expect status \"Open: Unable to open proof file\"\n"
                  "file \"" +
                  In("d.proof") +
                  "\"\nchoose optOpen\n"
                  "expect title \" Tessaryn 2.0  -  " +
                  In("d.proof") + "\"\n"),
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
                  "choose optSmallText\nsave \"" +
                  In("new.proof") + "\"\nexpect no form\n"),
              "");
    EXPECT_NE(Headless.Beeps[0].find("medium size"), std::string::npos);
    EXPECT_EQ(Get("UserFontSize.bin"), Magic + "\x0A\0"s);
    EXPECT_EQ(Get("RecentFiles.bin").substr(0, 12), Magic + "\x01\0"s);
    // A script that has nothing to say to the forms of the start does not meet them.
    fs::remove(In("UserOption.bin"));
    fs::remove(In("UserFontSize.bin"));
    EXPECT_EQ(Run("choose optPremise\nset RTB \"P\"\nchoose cmdContinue\nexpect count 1\n"), "");
}

TEST_F(Settings, FilesThatCannotBeWrittenAreReported) {
    for (const char* file :
         {"DefaultDir.bin", "RecentFiles.bin", "UserFontSize.bin", "UserOption.bin"}) {
        Block(file);
    }
    EXPECT_EQ(Run("choose optLargeText\nexpect message \"Unable to save user font file\"\n"
                  "choose optShowTip\nexpect beep\nexpect status \"Unable to process request\"\n"
                  "choose optSelectDir\nchoose cmdContinue\nexpect beep\nexpect form SelectDir\n"
                  "key Esc\nexpect no form\n"
                  "save \"" +
                  In("x.proof") +
                  "\"\n"
                  "expect message \"Unable to save recent file name\"\n"
                  "expect title \" Tessaryn 2.0  -  " +
                  In("x.proof") + "\"\n"),
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
    EXPECT_EQ(ReadWholeFile(own + "/DefaultDir.bin"), Magic + "\0\0\0\0"s);
    EXPECT_EQ(ReadWholeFile(own + "/RecentFiles.bin"), Magic + "\0\0"s);
    EXPECT_EQ(ReadWholeFile(own + "/UserFontSize.bin"), Magic + "\x0C\0"s);
    EXPECT_EQ(ReadWholeFile(own + "/UserOption.bin"), "\0\0"s);
    fs::remove(own + "/UserOption.bin");  // what is gone later is reported, not made again
    EXPECT_EQ(FindAppPath(""), own);
    EXPECT_FALSE(fs::exists(own + "/UserOption.bin"));
    unsetenv("XDG_CONFIG_HOME");
}

TEST(Tips, TableStartsAtOneAndHasFourteen) {
    EXPECT_TRUE(TipFor(0).starts_with("A typical proof cycle"));
    EXPECT_TRUE(TipFor(0.5).starts_with("If there are a fixed number"));
    EXPECT_TRUE(TipFor(0.99999).starts_with("To prove an implication"));
}

}  // namespace
}  // namespace tessaryn

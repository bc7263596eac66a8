// Writing files safely: what is refused and why, what is kept of the old file, and what a crash
// leaves behind.
#include "platform/Files.h"

#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <sys/xattr.h>

#include <csignal>
#include <tuple>

#include "OwnDirectory.h"

namespace tessaryn {
namespace {

namespace fs = std::filesystem;
using namespace std::string_literals;

class Files : public OwnDirectory {};

constexpr unsigned OtherUser = 54321;

// Until the end of the scope a test run by root is one of an ordinary user.
struct AsOrdinaryUser {
    AsOrdinaryUser() {
        Good = geteuid() != 0 || (setegid(OtherUser) == 0 && seteuid(OtherUser) == 0);
    }
    ~AsOrdinaryUser() {
        if (getuid() == 0) Good = seteuid(0) == 0 && setegid(getgid()) == 0;
    }
    bool Good;
};

// Until the end of the scope no file can grow beyond a few bytes.
struct TinyFiles {
    TinyFiles() {
        getrlimit(RLIMIT_FSIZE, &before);
        const rlimit tiny{10, before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &tiny);
    }
    ~TinyFiles() { setrlimit(RLIMIT_FSIZE, &before); }
    rlimit before{};
};

TEST_F(Files, ARefusalTellsWhyAndLeavesNothing) {
    WriteFile("file", "whole");
    WriteFile("protected", "whole");
    fs::create_directory(Path("closed"));
    fs::create_symlink("there", Path("here"));
    fs::create_symlink("here", Path("there"));
    ASSERT_EQ(mkfifo(Path("pipe").c_str(), 0600), 0);
    ASSERT_EQ(chmod(directory.c_str(), 0777), 0);
    ASSERT_EQ(chmod(Path("protected").c_str(), 0444), 0);
    ASSERT_EQ(chmod(Path("closed").c_str(), 0555), 0);
    const auto before = Names();
    const std::string own = "\"" + directory.string();
    const auto refused = [&](const std::string& name, const std::string& reason) {
        EXPECT_EQ(ReplaceFile(Path(name), "a longer text"), reason);
    };
    EXPECT_EQ(ReplaceFile("", "text"), "The file has no name.");
    refused("gone/a", "There is no directory " + own + "/gone\".");
    refused("file/a", own + "/file\" is no directory.");
    refused("closed", own + "/closed\" is a directory.");
    refused("pipe", own + "/pipe\" is no ordinary file.");
    refused("here", own + "/here\" is a link that leads in a circle.");
    refused(std::string(300, 'n'), "The name is too long.");
    {
        const TinyFiles tiny;
        const auto earlier = std::signal(SIGXFSZ, SIG_IGN);
        refused("file", "The file would be larger than the system allows.");
        std::signal(SIGXFSZ, earlier);
    }
    if (const AsOrdinaryUser user; user.Good) {
        refused("protected", "You may not write to " + own + "/protected\".");
        refused("closed/a", "You may not write to the directory " + own + "/closed\".");
    }
    EXPECT_EQ(Names(), before);
    EXPECT_EQ(ReadWholeFile(Path("file")), "whole");
    EXPECT_EQ(ReadWholeFile(Path("protected")), "whole");
}

TEST_F(Files, LinksAreWrittenThrough) {
    fs::create_directory(Path("sub"));
    fs::create_symlink("sub/second", Path("first"));
    fs::create_symlink("../file", Path("sub/second"));
    for (const char* text : {"where nothing was", "where a file was"}) {
        EXPECT_EQ(ReplaceFile(Path("first"), text), "");
        EXPECT_TRUE(fs::is_symlink(Path("first")) && fs::is_symlink(Path("sub/second")));
        EXPECT_EQ(ReadWholeFile(Path("file")), text);
    }
}

// True if the file is now another's, which is what root can do.
bool GiveAway(const std::string& path) {
    return chown(path.c_str(), 12345, 12345) == 0;
}

// Owner, group, mode, access list. Where the system has none of the last, it is not tested.
auto Attributes(const std::string& path) {
    struct stat info {};
    stat(path.c_str(), &info);
    char list[100];
    const auto size = getxattr(path.c_str(), "system.posix_acl_access", list, sizeof list);
    return std::tuple(info.st_uid, info.st_gid, info.st_mode,
                      std::string(list, static_cast<std::size_t>(size < 0 ? 0 : size)));
}

TEST_F(Files, WhatTheOldFileHadIsKept) {
    // Owner all, user 12345 read and write, group read, mask read and write, others nothing.
    const std::string list =
        "\2\0\0\0\1\0\7\0\xFF\xFF\xFF\xFF\2\0\6\0\x39\x30\0\0\4\0\4\0"
        "\xFF\xFF\xFF\xFF\x10\0\6\0\xFF\xFF\xFF\xFF\x20\0\0\0\xFF\xFF\xFF\xFF"s;
    const auto give = [&](const std::string& path, const char* kind) {
        setxattr(path.c_str(), kind, list.data(), list.size(), 0);
    };
    for (const char* name : {"listed", "plain"}) WriteFile(name, "old");
    GiveAway(Path("listed"));
    chmod(Path("plain").c_str(), 0750);
    give(Path("listed"), "system.posix_acl_access");
    give(directory.string(), "system.posix_acl_default");  // from now on, every new file's
    for (const char* name : {"listed", "plain"}) {
        const auto before = Attributes(Path(name));
        EXPECT_EQ(ReplaceFile(Path(name), "new"), "");
        EXPECT_EQ(Attributes(Path(name)), before) << name;
    }
    WriteFile("made by the system", "new");
    EXPECT_EQ(ReplaceFile(Path("made here"), "new"), "");
    EXPECT_EQ(Attributes(Path("made here")), Attributes(Path("made by the system")));
}

TEST_F(Files, AGroupThatCannotBeKeptGivesNobodyMore) {
    WriteFile("foreign", "old");
    if (!GiveAway(Path("foreign"))) GTEST_SKIP() << "files can't change hands here";
    chmod(Path("foreign").c_str(), 0662);
    chmod(directory.c_str(), 0777);
    {
        const AsOrdinaryUser user;
        if (!user.Good) GTEST_SKIP() << "can't be another user here";
        EXPECT_EQ(ReplaceFile(Path("foreign"), "new"), "");
    }
    EXPECT_EQ(Attributes(Path("foreign")), std::tuple(OtherUser, OtherUser, 0100622U, ""));
}

TEST_F(Files, OnlyLeftoversOfTheDeadAreRemoved) {
    if (!fs::exists("/proc/sys/kernel/random/boot_id"))
        GTEST_SKIP() << "systems are not told apart";
    WriteFile("file", "old");
    OldLeftover(".tessaryn-notes");  // as the user may have called a file
    const auto clean = Names();
    const pid_t writer = fork();
    if (writer == 0) {  // stands still in the midst of writing
        const TinyFiles tiny;
        std::signal(SIGXFSZ, [](int) { std::raise(SIGSTOP); });
        ReplaceFile(Path("file"), "a longer text");
        _exit(0);
    }
    ASSERT_EQ(waitpid(writer, nullptr, WUNTRACED), writer);
    const auto withLeftover = Names();
    EXPECT_EQ(withLeftover.size(), clean.size() + 1);
    EXPECT_EQ(ReplaceFile(Path("file"), "new"), "");
    EXPECT_EQ(Names(), withLeftover) << "its writer lives";
    kill(writer, SIGKILL);
    waitpid(writer, nullptr, 0);

    const std::string leftover = Path(*withLeftover.begin());
    const std::string foreign = OldLeftover();
    fs::last_write_time(foreign, fs::file_time_type::clock::now());
    EXPECT_EQ(ReplaceFile(Path("file"), "new"), "");
    EXPECT_FALSE(fs::exists(leftover)) << "its writer was killed";
    EXPECT_TRUE(fs::exists(foreign)) << "its writer may live on another machine";
    OldLeftover();
    RemoveLeftoversBeside(Path("file"));
    EXPECT_EQ(Names(), clean);
    EXPECT_EQ(ReadWholeFile(Path("file")), "new");
}

}  // namespace
}  // namespace tessaryn

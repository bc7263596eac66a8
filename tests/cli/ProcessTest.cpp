// tessaryn-cli as a process: whatever it is given to read and wherever it is told to write, it ends
// with 0, 1 or 2.
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdlib>

#include "OwnDirectory.h"
#include "Workbench.h"
#include "cli/CommandText.h"

namespace tessaryn {
namespace {

namespace fs = std::filesystem;

#if defined(__SANITIZE_ADDRESS__)
constexpr bool MemoryCanBeLimited = false;  // the sanitizer needs far more than it uses
#else
constexpr bool MemoryCanBeLimited = true;
#endif

class ProcessTest : public OwnDirectory {
  protected:
    void SetUp() override {
        ASSERT_EQ(Build(EnterPremise("P & Q") + "save " + Quoted(Path("small.proof")) + "\n"), "");
        // An introduction of 5 million bytes.
        WriteFile("large.proof", std::string("Tessaryn 1\0\0\0\0\xFF\xFF\x44\x4B\x4C\0", 20) +
                                     std::string(5000000, 'x') + "\r\n\r\n");
        WriteFile("empty-head", std::string("Tessaryn 1\1\0", 12));
        WriteFile("long-caption", std::string("Tessaryn 1\1\0\xFF\xFF\xF0\xFF\xFF\xFF", 18));
        WriteFile("long-name", std::string("Tessaryn 1\1\0\0\0\1\0\0\0\0\0\xFF\xFF\0\0\0\x7F", 26));
        WriteFile("no-proof", "");
        fs::copy_file(Path("small.proof"), Path("padded.proof"));
        for (const char* name :
             {"empty-head", "long-caption", "long-name", "no-proof", "padded.proof"}) {
            fs::resize_file(Path(name), 20ULL << 30);  // sparse
        }
    }
    // The exit status of a shell command in the test's directory, in which "cli" is the program;
    // that of a signal is above 128.
    int Shell(const std::string& command) const {
        const std::string whole = "cd '" + directory.string() + "' && exec 2>errors && cli() { '" +
                                  TESSARYN_CLI "' \"$@\"; } && " + command;
        const int status = std::system(("bash -c " + Escaped(whole)).c_str());
        return WIFEXITED(status) ? WEXITSTATUS(status) : 128;
    }
    std::string Errors() const {
        std::ifstream file(Path("errors"));
        return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    }

  private:
    static std::string Escaped(const std::string& text) {
        std::string escaped = "'";
        for (const char c : text) escaped += c == '\'' ? "'\\''" : std::string(1, c);
        return escaped + "'";
    }
};

TEST_F(ProcessTest, EndsWithAStatusOfItsOwn) {
    const std::pair<const char*, int> rows[] = {
        // where nothing can be read
        {"mkfifo fifo && mkdir folder && touch unreadable && chmod 0 unreadable", 0},
        {"cli dump fifo", 1},
        {"cli html folder page.html", 1},
        {"cli print gone page.txt", 1},
        {"cli run folder", 1},
        {"cli run - < folder", 1},
        {"cli parse < folder", 1},
        {"cli same <&-", 1},
        {"[ $UID = 0 ] || ! cli dump unreadable", 0},
        // where there is no end
        {"cli dump /dev/zero", 1},
        {"cli run no-proof", 1},
        {"cli parse < no-proof", 1},
        // where nothing can be written
        {"cli html small.proof fifo", 1},
        {"cli print small.proof folder", 1},
        {"cli dump small.proof >/dev/full", 1},
        {"cli dump small.proof >&-", 1},
        {"cli --help 2>&- >&-", 1},
        {"cli dump large.proof | head -c 1 >/dev/null; exit ${PIPESTATUS[0]}", 1},
        {"(ulimit -f 1 && cli dump large.proof >page)", 1},
        {"(ulimit -f 1 && cli html large.proof page)", 1},
        {"(ulimit -f 0 && cli print small.proof page)", 1},
        {"echo 'save \"x.proof\"' | (ulimit -f 0 && cli run -)", 0},
        {"ls -A | grep .tessaryn-", 1},
    };
    for (const auto& [command, status] : rows) {
        EXPECT_EQ(Shell(command), status) << command << "\n" << Errors();
    }
}

TEST_F(ProcessTest, ExamplesOfTheHelpWorkAsPrinted) {
    for (const CommandText& command : CommandTexts()) {
        const std::string whole = "tessaryn-cli() { cli \"$@\"; }; " + std::string(command.example);
        EXPECT_EQ(Shell(whole + " >output"), 0) << command.name << "\n" << Errors();
    }
    EXPECT_EQ(Shell("grep -q '^first.proof  *1/1' output || ! cat output >&2"), 0) << Errors();
}

// A program that waits for each answer before it goes on.
TEST_F(ProcessTest, RunAnswersEachLineAsItComes) {
    const std::string driver =
        "coproc { cli run -; echo status $?; };"
        "ask() { echo \"$1\" >&${COPROC[1]}; read -t 60 answer <&${COPROC[0]}; };"
        "ask 'echo \"one\"' && [ \"$answer\" = one ] &&"
        "ask dump && [[ $answer == *'\"statements\":[]'* ]] &&"
        "echo 'choose optPremise' >&${COPROC[1]} && ask dump && [[ $answer == *TestParser* ]] &&"
        "ask 'expect count 5' && [ \"$answer\" = 'status 1' ]";
    EXPECT_EQ(Shell(driver), 0) << Errors();
    EXPECT_NE(Errors().find("-:5: the number of lines is 0, expected 5"), std::string::npos);
}

TEST_F(ProcessTest, ColoursAreForTerminals) {
    const std::string terminal =
        "script -qec \"'" TESSARYN_CLI "' check small.proof gone\" /dev/null";
    const std::pair<std::string, bool> rows[] = {
        {"TERM=xterm " + terminal, true},
        {"TERM=dumb " + terminal, false},
        {"NO_COLOR=1 TERM=xterm " + terminal, false},
        {"TERM=xterm cli check small.proof gone 2>&1", false},
    };
    for (const auto& [command, coloured] : rows) {
        EXPECT_EQ(Shell(command + " | grep -q $'\\e'"), coloured ? 0 : 1) << command;
    }
}

TEST_F(ProcessTest, LargeFilesAreRefusedInLittleMemory) {
    const std::string limited = MemoryCanBeLimited ? "ulimit -v 60000 && " : "";
    for (const char* name : {"no-proof", "empty-head", "long-caption", "long-name"}) {
        EXPECT_EQ(Shell(limited + "cli dump " + name), 1) << name;
        EXPECT_NE(Errors().find("is no proof file"), std::string::npos) << Errors();
    }
    EXPECT_EQ(Shell(limited + "cli dump padded.proof >&2"), 0) << "what is behind is never read";
}

// Wherever the memory runs out: the one proof is open or the other, name and title with it.
TEST_F(ProcessTest, ShortMemoryLeavesTheOpenProof) {
    if (!MemoryCanBeLimited) GTEST_SKIP();
    WriteFile("script",
              "open \"small.proof\"\nopen \"large.proof\"\n"
              "expect title \" Tessaryn 2.0  -  small.proof\"\nexpect count 1\nexpect beep\n"
              "expect status \"Open: Unable to open proof file\"\n");
    int refused = 0;
    for (int limit = 10000; limit <= 30000; limit += 1000) {
        const int status = Shell("ulimit -v " + std::to_string(limit) + " && cli run script");
        if (status == 0) ++refused;
        const std::string errors = Errors();
        EXPECT_TRUE(status == 0 || errors.find("large.proof\", expected") != errors.npos ||
                    errors.find("2: unexpected failure: std::bad_alloc") != errors.npos)  // --check
            << limit << errors;
    }
    EXPECT_GT(refused, 3);
    for (int limit = 6000; limit <= 12000; limit += 500) {
        const int status =
            Shell("ulimit -v " + std::to_string(limit) + " && cli dump small.proof >&2");
        EXPECT_TRUE(status <= 1 || status == 127) << limit << ": " << status;  // 127: not loaded
    }
}

}  // namespace
}  // namespace tessaryn

// Runs the tables of cases: the texts beside the tests of some folders.
//
// A case is a row of steps (Steps.h) that begins with an empty proof. It goes on in the lines below
// it that are indented. "#" begins a comment, also within a case. The items that are hidden in the
// window can be chosen.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "Steps.h"
#include "cli/ScriptRunner.h"

namespace tessaryn {
namespace {

namespace fs = std::filesystem;

struct Case {
    int line;
    std::string steps;
};

std::vector<Case> ReadCases(const fs::path& path) {
    std::vector<Case> cases;
    std::ifstream file(path);
    std::string text;
    for (int line = 1; std::getline(file, text); ++line) {
        if (text.empty() || text.starts_with('#')) continue;
        if (text.starts_with(' ') && !cases.empty()) {
            cases.back().steps += " ; " + text;
        } else {
            cases.push_back({line, text});
        }
    }
    return cases;
}

std::vector<std::string> Tables() {
    std::vector<std::string> tables;
    for (const auto& entry :
         fs::recursive_directory_iterator(fs::path(TESSARYN_SOURCE_DIR) / "tests")) {
        const fs::path& path = entry.path();
        if (path.extension() == ".txt" && path.stem() != "CMakeLists") {
            tables.push_back(path.string());
        }
    }
    return tables;
}

class Cases : public testing::TestWithParam<std::string> {};

TEST_P(Cases, Hold) {
    const std::vector<Case> cases = ReadCases(GetParam());
    EXPECT_FALSE(cases.empty());
    fs::current_path(testing::TempDir());  // for what a case saves
    for (const auto& [line, steps] : cases) {
        EXPECT_EQ(Do(steps), "") << GetParam() << ":" << line;
    }
}

// What the program shows and does after a new start.
std::string NewStart() {
    constexpr const char* Looks =
        "dump ; Find ; dump ; choose cmdCancel ; Caption ; dump ; choose Cancel ; "
        "! ALL(a):[a @ s => x=y] ; + x=y & P(x) ; Split 2 ; RepeatFind ; Premise ; choose cmdPaste "
        "; dump ; "
        "choose cmdCancel ; Substitution 3:y ; dump ; click 4 ; dump ; choose cmdCancel ; EGen ; "
        "dump ; key Esc ; key Ctrl+Z ; dump ; PowerSet ; dump ; choose Cancel ; Print ; dump";
    const ScriptResult result = RunScript(ScriptOf(Looks));
    EXPECT_EQ(result.error, "");
    return result.output;
}

TEST_P(Cases, LeaveNothingBehindWhereverTheyStop) {
    const std::string atFirst = NewStart();
    for (const auto& [line, steps] : ReadCases(GetParam())) {
        for (auto end = steps.find(" ; "); end != steps.npos; end = steps.find(" ; ", end + 1)) {
            Do("LargeText ; " + steps.substr(0, end));
            ASSERT_EQ(NewStart(), atFirst) << GetParam() << ":" << line << " to " << end;
        }
    }
}

std::string NameOf(const testing::TestParamInfo<std::string>& info) {
    std::string name = fs::path(info.param).stem().string();
    std::replace(name.begin(), name.end(), '-', '_');
    return name;
}

INSTANTIATE_TEST_SUITE_P(Tables, Cases, testing::ValuesIn(Tables()), NameOf);

}  // namespace
}  // namespace tessaryn

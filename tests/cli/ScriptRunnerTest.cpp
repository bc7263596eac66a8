// The script runner itself: how lines are read, where they lead, what ends a run. What the program
// does with the events is tested by the scripts in tests/scripts/.
#include "cli/ScriptRunner.h"

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "Workbench.h"
#include "cli/HeadlessPlatform.h"
#include "document/Document.h"
#include "mainwindow/Proof.h"

namespace tessaryn {
namespace {

// Each row fails in its last line, with that message.
struct Failure {
    std::string script;
    std::string error;
};

void ExpectFailures(const std::string& start, const std::vector<Failure>& failures) {
    for (const Failure& failure : failures) {
        const ScriptResult result = RunScript(start + failure.script + "\n");
        const auto lines = std::count(start.begin(), start.end(), '\n') +
                           std::count(failure.script.begin(), failure.script.end(), '\n') + 1;
        EXPECT_EQ(result.status, 1) << failure.script;
        EXPECT_TRUE(
            result.error.starts_with("script:" + std::to_string(lines) + ": " + failure.error))
            << failure.script << "\n"
            << result.error;
    }
}

TEST(ScriptRunner, ReadsLines) {
    const ScriptResult result = RunScript(
        "\xEF\xBB\xBF# comment\r\n\r\n  echo \"a \\\"b\\\" \\u03b5 \\\\\"  \r\n\t# more\n"
        "echo \"\"\necho \"last\"");
    EXPECT_EQ(result.error, "");
    EXPECT_EQ(result.output, "a \"b\" ε \\\n\nlast\n");
    EXPECT_EQ(RunScript("").status, 0);
}

TEST(ScriptRunner, RefusesWhatItCannotRead) {
    EXPECT_EQ(RunScript("\xff\x1b[2J").error, "script:1: there is no action ÿ [2J\n");
    ExpectFailures("", {
                           {"dance", "there is no action dance"},
                           {"echo", "expected a string in double quotes"},
                           {"echo \"open", "the string has no closing quote"},
                           {"echo \"\\x\"", "the string is not written as JSON has it"},
                           {"echo \"\xff\"", "the string is not written as JSON has it"},
                           {"echo \"a\"\"b\"", "a blank is missing behind the string"},
                           {"echo \"a\" b", "nothing may follow here: b"},
                           {"save \"a\\u0000b\"", "no path can hold \\u0000"},
                           {"choose", "a word is missing"},
                           {"choose \"optNew\"", "expected a word, not a string"},
                           {"expect count two", "expected a number, not two"},
                           {"expect count 99999999999", "expected a number"},
                           {"expect the best", "can't expect the"},
                           {"key F13", "there is no key F13"},
                           {"answer Maybe", "an answer is"},
                           {"# fine\necho \"\"\nclick", "a word is missing"},
                       });
}

TEST(ScriptRunner, ReachesOnlyWhatAUserCould) {
    ExpectFailures("", {
                           {"choose optNothing", "Proof has no optNothing"},
                           {"choose optUndo", "optUndo is hidden or disabled"},
                           {"choose mnuFile", "there is no command behind mnuFile"},
                           {"choose StatusLine", "there is no command behind StatusLine"},
                           {"set RTB \"x\"", "RTB can't be edited"},
                           {"set optNew \"x\"", "optNew is no box"},
                           {"pick \"x\"", "no dialogue with a statement"},
                           {"choose optPremise\nchoose optJoin", "TestParser has no optJoin"},
                           {"choose optPremise\nchoose cmdParse", "cmdParse is hidden"},
                           {"choose optPremise\nclick intro", "the proof can't be clicked while"},
                           {"choose optPremise\nsave \"x\"", "TestParser has no optSaveAs"},
                       });
    ScriptOptions options;
    options.showHidden = true;
    RunScript("", "script", options);
    EXPECT_TRUE(Proof.optNtupleEQ.Visible);
    EXPECT_FALSE(Proof.optFile1.Visible) << "there is no recent file behind it";
}

TEST(ScriptRunner, FindsClickTargets) {
    // A refused click leaves the caret where it fell.
    const std::pair<const char*, int> rows[] = {
        {"click 1", 2},        {"click 1 \"P\"", 2},
        {"click 1 \"&\"", 4},  {"click 1 \"Q\" 1", 6},
        {"click 1 number", 0}, {"click 1 rule", 10},
        {"click intro", 0},    {"click at 3", 3},
        {"click 2", 23},       {"doubleclick 1 \"Q\"", 6},
    };
    for (const auto& [click, position] : rows) {
        EXPECT_EQ(
            Build(EnterPremise("P & Q") + EnterPremise("R") + "choose optDetachment\n" + click),
            "");
        EXPECT_EQ(Proof.RTB.GetSelStart(), position) << click;
    }
    ExpectFailures(EnterPremise("Pq & P & Q") + "choose optDetachment\n",
                   {
                       {"click 2", "there is no line 2"},
                       {"click 0", "there is no line 0"},
                       {"click 1 \"q\"", "line 1 has no \"q\""},
                       {"click 1 \"P\" 2", "line 1 has no \"P\" number 2"},
                       {"click 1 \"P\" 0", "places are counted from 1"},
                       {"click 1 here", "no such target: here"},
                       {"click at 999", "the display has no position 999"},
                       {"click at -1", "the display has no position -1"},
                       {"click intro 2", "nothing may follow here"},
                       {"select 1 \"\"", "an empty text stands nowhere"},
                       {"select 1 \"P & R\"", "line 1 has no \"P & R\""},
                   });
}

TEST(ScriptRunner, SelectsAcrossLineBreaks) {
    // Stored with a TAB behind the break; places overlap.
    const std::string start = EnterPremise("Aaa\n& Aaa");
    EXPECT_EQ(RunScript(start + "select 1 \"a\\r\\n& A\"\n").error, "");
    EXPECT_EQ(Proof.RTB.GetSelText(), "a\r\n\t& A");
    EXPECT_EQ(RunScript(start + "select 1 \"a\" 4\n").error, "");
    EXPECT_EQ(Proof.RTB.GetSelStart(), 12);
    EXPECT_EQ(RunScript(EnterPremise("aaa=x") + "select 1 \"aa\" 2\n").error, "");
    EXPECT_EQ(Proof.RTB.GetSelStart(), 3);
    EXPECT_EQ(RunScript(EnterPremise("x @ s") + "select 1 \"x ε\"\n").error, "");
    EXPECT_EQ(Proof.RTB.GetSelLength(), 3);
}

TEST(ScriptRunner, RefusesClicksOnHiddenLines) {
    // A file opens with its closed blocks folded away.
    const std::string path = ::testing::TempDir() + "hidden.proof";
    ExpectFailures(EnterPremise("P") + "choose optConclusion\nsave \"" + path + "\"\nopen \"" +
                       path + "\"\nchoose optCopyStatement\nclick 2\nchoose optCopyStatement\n",
                   {{"click 1", "line 1 is not shown"}, {"select 1 \"P\"", "line 1 is not shown"}});
}

TEST(ScriptRunner, ExpectationsTellWhatTheyFound) {
    ExpectFailures(EnterPremise("P"),
                   {
                       {"expect line 1 \"Q\"", "line 1 is \"P\", expected \"Q\""},
                       {"expect line 2 \"P\"", "there is no line 2"},
                       {"expect rule 1 \"Axiom\"", "the rule of line 1 is \"Premise\""},
                       {"expect count 2", "the number of lines is 1, expected 2"},
                       {"expect mode 1", "the mode is 0, expected 1"},
                       {"expect status \"x\"", "the status line is \"\""},
                       {"expect title \"\"", "the title is \" Tessaryn 2.0"},
                       {"expect form TestParser", "no form is open"},
                       {"choose optPremise\nexpect no form", "TestParser is open"},
                       {"choose optPremise\nexpect control RTB \"x\"", "RTB is \"\""},
                       {"expect control Nobody \"\"", "Proof has no Nobody"},
                       {"expect beep", "expected a beep"},
                       {"choose optSplit\nclick 1\nexpect no beep", "there was a beep"},
                       {"expect message \"\"", "no message box was shown"},
                       {"save \".\"\nexpect no message", "a message box was shown: \"Unable"},
                   });
}

TEST(ScriptRunner, BeepsCountSinceTheLastAction) {
    const std::string refused = EnterPremise("P") + "choose optSplit\nclick 1\n";
    EXPECT_EQ(RunScript(refused + "expect beep\nexpect beep\nkey Esc\nexpect no beep\n").error, "");
    const std::string error = RunScript(refused + "expect count 3\n", "my.script").error;
    EXPECT_TRUE(error.starts_with("my.script:6: the number of lines is 1, expected 3 (last beep: "))
        << error;
}

TEST(ScriptRunner, EndsWithinOpenForms) {
    EXPECT_EQ(RunScript("choose optPremise\nset RTB \"P\"\n").status, 0);
    EXPECT_EQ(StmtCount, 0);
    // Nothing pending: Esc ends the program, and the run with it.
    EXPECT_EQ(RunScript("key Esc\nnonsense\n").status, 0);
    EXPECT_EQ(RunScript("choose optExit\nnonsense\n").status, 0);
    EXPECT_EQ(RunScript(EnterPremise("P") + "choose optExit\nchoose cmdNo\nnonsense\n").status, 0);
    EXPECT_EQ(
        RunScript(EnterPremise("P") + "choose optExit\nchoose cmdCancel\nexpect count 1").error,
        "");
}

TEST(ScriptRunner, QueuesReplies) {
    const std::string join = EnterPremise("ALL(x):P(x)") + "choose optJoin\nclick 1\n";
    EXPECT_EQ(RunScript(join + "answer No\nanswer Yes\nclick 1\nexpect count 2\n").error, "");
    EXPECT_EQ(Headless.Answers.size(), 1U);
    // A reply that the box has no button for fails the action that showed the box.
    ExpectFailures(join, {{"answer OK\nclick 1", "the message box \"Join Rule Option\" has no"}});
    const std::string path = ::testing::TempDir() + "queue.proof";
    EXPECT_EQ(RunScript(EnterPremise("P") + "file cancel\nfile \"" + path +
                        "\"\nchoose optSaveAs\nexpect title \" Tessaryn 2.0  -  (Untitled)\"\n"
                        "choose optSaveAs\nexpect title \" Tessaryn 2.0  -  " +
                        path + "\"\n")
                  .error,
              "");
}

TEST(ScriptRunner, ShowsTheDisplayAsText) {
    const ScriptResult result = RunScript("show\n" + EnterPremise("s @ e") +
                                          "choose optConclusion\nchoose Continue\nshow\n");
    EXPECT_EQ(result.error, "");
    EXPECT_EQ(result.output,
              "\t1\ts ε e\n\t\tPremise\n\n"
              "2\tALL(s):ALL(e):[s ε e => s ε e]\n\t▶ Conclusion, 1\n\n");
}

TEST(ScriptRunner, DumpsTheState) {
    const ScriptResult result = RunScript("dump\n" + EnterPremise("P") +
                                          "choose optDetachment\nclick 1\nchoose optPremise\n"
                                          "set RTB \"x @ s\"\ndump\ndump\n");
    ASSERT_EQ(result.error, "");
    std::istringstream lines(result.output);
    std::string empty;
    std::string full;
    std::string again;
    std::getline(lines, empty);
    std::getline(lines, full);
    std::getline(lines, again);
    EXPECT_EQ(
        empty,
        R"json({"title":" Tessaryn 2.0  -  (Untitled)",)json"
        R"json("status":"Click Help** Button to start Tutorial","ruleMode":0,"firstClick":false,)json"
        R"json("insertMode":false,"insertLine":0,"insertLabel":"","insertChecked":false,)json"
        R"json("proofChanged":false,"canUndo":false,"canRedo":false,"fileName":"","caption":"",)json"
        R"json("introEnd":0,"proofText":"","statements":[],)json"
        R"json("view":{"text":"","selStart":0,"selLength":0,"runs":[]},)json"
        R"json("form":null,"beeps":0,"reasons":[],"messages":[]})json");
    const auto state = nlohmann::ordered_json::parse(full);
    EXPECT_EQ(
        state["statements"].dump(),
        R"json([{"Rule":1,"Arg1":0,"Arg2":0,"SpecName":"","FreeVars":"","FixedVars":"",)json"
        R"json("SpareVars":"","Visible":true,"StartLine":1,"EndUserComment":0,"StartStmt":3,)json"
        R"json("EndStmt":3,"StartRule":7,"EndRule":13,"ViewerStartLine":1,"Flagged":false,)json"
        R"json("NewNumber":0,"Highlight":true}])json");
    EXPECT_EQ(state["view"]["runs"][0][4], "#000000");
    EXPECT_EQ(state["form"]["name"], "TestParser");
    EXPECT_EQ(state["form"]["focus"], "RTB");
    EXPECT_EQ(state["form"]["controls"]["RTB"], "x @ s");
    EXPECT_EQ(state["form"]["controls"].begin().key(), "StatusLine");
    EXPECT_EQ(state["beeps"], 1);
    EXPECT_EQ(state["reasons"].size(), 1U);
    EXPECT_EQ(nlohmann::json::parse(again)["beeps"], 0);
}

}  // namespace
}  // namespace tessaryn

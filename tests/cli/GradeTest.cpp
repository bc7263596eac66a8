// Sheets, and what students hand in.
#include <gtest/gtest.h>

#include <fstream>
#include <nlohmann/json.hpp>
#include <sstream>

#include "OwnDirectory.h"
#include "Repeated.h"
#include "Workbench.h"
#include "check/WrittenFile.h"
#include "cli/Call.h"
#include "document/ProofFile.h"
#include "platform/Files.h"

namespace tessaryn {
namespace {

namespace fs = std::filesystem;
using nlohmann::json;

Outcome Grade(std::vector<std::string> words) {
    words.insert(words.begin(), "grade");
    return Call(words);
}

// What is said of an exercise that nobody tried.
bool IsDull(const std::string& reason) {
    return reason.starts_with("no line is the goal (") && reason.ends_with(')');
}

// Statements and reasons of a proof file, without what is said about them.
std::vector<std::string> LinesOf(const std::string& path) {
    const Document proof = *ReadProof(*ReadWholeFile(path));
    std::vector<std::string> lines;
    for (int i = 1; i <= proof.StmtCount; ++i) {
        lines.emplace_back(ProofSlice(At(i, proof).StartStmt, At(i, proof).EndRule, proof));
    }
    return lines;
}

class GradeTest : public OwnDirectory {
  protected:
    GradeTest() { fs::create_directory(directory / "class"); }
    void HandIn(const std::string& name, const std::string& bytes) const {
        fs::create_directories(fs::path(Path("class/" + name)).parent_path());
        WriteFile("class/" + name, bytes);
    }
    Outcome GradeClass(const std::string& form = "--json") const {
        return Grade({form, "--seconds", "2", Path("sheet.json"), Path("class")});
    }
    // Of each submission its points and the reasons for those missing.
    std::map<std::string, std::string> Rows(const Outcome& outcome) const {
        std::map<std::string, std::string> rows;
        const json report = json::parse(outcome.output);
        for (const json& row : report["submissions"]) {
            std::ostringstream text;
            text << row["points"].get<double>() << (row["judged"] == true ? "" : " not judged");
            std::set<std::string> reasons;
            for (const json& exercise : row["exercises"]) {
                const std::string reason = exercise["reason"];
                if (!reason.empty()) reasons.insert(reason);
            }
            if (reasons.size() > 1) std::erase_if(reasons, IsDull);
            for (const std::string& reason : reasons) text << ": " << reason;
            rows[row["name"]] = text.str();
        }
        return rows;
    }
};

const std::string HonestSwap =
    ProofOf({"Premise: P & Q", "Split 1: P", "Split 1: Q", "Join 3 2: Q & P"});
const std::string Inductive = "1=1 & ALL(k):[k @ n & k=k => k+1=k+1] => ALL(k):[k @ n => k=k]";

struct Cheat {
    std::string file;
    std::string bytes;
    std::string row;  // begins so
};

// Each gets nothing, and its own sentence.
std::vector<Cheat> Cheats() {
    const std::string half = HonestSwap.substr(0, HonestSwap.size() / 2);
    const std::string swap =
        EnterPremise("P & Q") + "choose optSplit\nclick 1\nchoose optJoin\nclick 3\nclick 2\n";
    const std::string noGoal = "0: no line is the goal";
    return {
        // nothing, or not all
        {"empty.proof", "", "0: the file is empty"},
        {"empty.script", "", "0: the file is empty"},
        {"cut.proof", half, "0: the file is damaged: bytes are missing"},
        {"ended early.script", EnterPremise("P & Q") + "choose optExit\n" + swap,
         noGoal + " (the last one, line 1, says P & Q)"},
        {"stops.script", "click 1\n" + swap,
         "0: the proof has no lines; the script stops in line 1: there is no line 1"},
        // lines that do not follow
        {"forged.proof", ProofOf({"Premise: P & Q", "Join 1 1: Q & P"}),
         "0: the proof is wrong: line 2 does not follow from line 1 and line 1 by Join ("},
        // other premises and axioms
        {"premise altered.proof",
         ProofOf({"Premise: Q & P", "Split 1: Q", "Split 1: P", "Join 2 3: Q & P"}),
         "0: line 4 is the goal, but it rests on the premise in line 1, which says the same"},
        {"premise is goal.proof", ProofOf({"Premise: Q & P"}),
         "0: line 1 is the goal, but only as a premise"},
        {"axiom is goal.proof", ProofOf({"Axiom: Q & P"}),
         "0: line 1 is the goal, but only as an axiom"},
        {"axiom is goal renamed.proof",
         ProofOf({"Axiom: 1=1 & ALL(x):[x @ n & x=x => x+1=x+1] => ALL(y):[y @ n => y=y]",
                  "Copy 1: " + Inductive}),
         "0: line 2 is the goal, but it rests on the axiom in line 1, which says the same"},
        {"axiom proves anything.proof", ProofOf({"Axiom: R & ~R & [Q & P]", "Split 1: Q & P"}),
         "0: line 2 is the goal, but it rests on the axiom in line 1, which is not allowed here"},
        {"every n.proof", ProofOf({"Premise: n=1", "Induction: " + Inductive}),
         "0: line 2 is the goal, but it rests on Induction for every n, which is not allowed here"},
        {"n of its own.proof", ProofOf({"Axiom: n=1", "Induction: " + Inductive}),
         "0: line 2 is the goal, but it rests on Induction for the n of the axiom in line 1, "
         "which is not allowed here"},
        {"witness.proof", ProofOf({"Axiom: EXIST(a):W(a)", "E Spec 1 w: W(w)"}),
         "0: line 2 is the goal, but it rests on the axiom in line 1 and the choice of w in line "
         "2"},
        // the goal, but not as a statement that holds
        {"in a block.proof", ProofOf({"Premise: Q & P", "Conclusion 1: Q & P => Q & P"}),
         "0: line 1 is the goal, but it lies in a block that is closed"},
        {"in a comment.proof",
         [] {
             WrittenLines lines = {ReadLine("Premise: P & Q")};
             lines[0].comment = "5\tQ & P\r\n\tJoin, 3, 2";
             return FileOf(lines);
         }(),
         noGoal},
        // two in one
        {"two proofs.proof", ProofOf({"Premise: P"}) + HonestSwap, noGoal},
        {"two proofs.script", swap + "choose optNew\nchoose cmdNo\n" + EnterPremise("P"), noGoal},
        // beyond the folder
        {"open.script", "open \"" + std::string("honest.proof") + "\"\n",
         "0: the proof has no lines; the script stops in line 1: nothing can be opened, saved or "
         "printed here"},
        {"save.script", EnterPremise("P") + "save \"honest.proof\"\n",
         "0: no line is the goal (the last one, line 1, says P); the script stops in line 4: "
         "nothing can be opened"},
        {"print.script", EnterPremise("P") + "choose optPrint\nchoose cmdContinue\n",
         noGoal + " (the last one, line 1, says P); the script stops in line 5: nothing can be "},
        // too much
        {"endless.script", swap + Repeated("show\n", 3'000'000),
         "0 not judged: judging it took longer than 2 seconds"},
        {"deep.proof", ProofOf({"Premise: " + std::string(30'000, '~') + "P"}),
         "0 not judged: line 1 cannot be judged: it is nested too deeply"},
        // names
        {"=cmd|' -C calc'!A0.proof", "", "0: the file is empty"},
        {"line\nfeed \"and\" \x1B[2J\u200B, more.proof", "", "0: the file is empty"},
        {"points.json", "{\"points\":9}", "0: its name ends neither in .proof nor in .script"},
        {"folder.proof/notes", "", "0: there is no proof and no script in it"},
    };
}

TEST_F(GradeTest, CheatsGetNothingAndTouchNoOtherRow) {
    WriteFile("sheet.json", json{{"title", "Cheats"},
                                 {"exercises",
                                  {{{"name", "swap"}, {"premises", {"P & Q"}}, {"goal", "Q & P"}},
                                   {{"name", "induction"},
                                    {"goal", Inductive},
                                    {"axioms", {"number axioms", "Induction"}},
                                    {"points", 2.5}},
                                   {{"name", "something"}, {"goal", "W(w)"}}}}}
                                .dump());
    std::vector<Cheat> cheats = Cheats();
    for (const Cheat& cheat : cheats) HandIn(cheat.file, cheat.bytes);
    HandIn("honest.proof", HonestSwap);
    HandIn("also honest/a.proof", ProofOf({"Axiom: 1 @ n", "Induction: " + Inductive}));
    HandIn("also honest/sub/b.proof", HonestSwap);
    HandIn("also honest/sub/.c.proof", "");
    HandIn("in parts/a.proof", ProofOf({"Premise: P"}));
    HandIn("in parts/b.script", "click 1\n");
    fs::create_symlink("honest.proof", Path("class/link.proof"));
    HandIn("huge.proof", "Tessaryn 1");
    fs::resize_file(Path("class/huge.proof"), 20ULL << 30);  // sparse
    ASSERT_EQ(mkfifo(Path("class/pipe.proof").c_str(), 0600), 0);
    cheats.insert(cheats.end(),
                  {{"link.proof", "", "0: it is a link to some other place"},
                   {"huge.proof", "", "0: the file is too large"},
                   {"pipe.proof", "", "0: it is no file"},
                   {"in parts", "", "0: b.script: the proof has no lines; the script stops"},
                   {"honest.proof", "", "1: no line is the goal"},
                   {"also honest", "", "3.5: none of its 2 files has the goal"}});
    const Outcome outcome = GradeClass();
    EXPECT_EQ(outcome.status, 1);
    const std::size_t news = outcome.error.find(" judged, ");  // and how long the next one takes
    ASSERT_NE(news, outcome.error.npos) << outcome.error;
    EXPECT_EQ(outcome.error.substr(news + 10, 6), " s at ") << outcome.error;
    std::map<std::string, std::string> rows = Rows(outcome);
    EXPECT_EQ(rows.size(), cheats.size());
    for (const Cheat& cheat : cheats) {
        const std::string name = cheat.file.substr(0, cheat.file.find('/'));
        EXPECT_EQ(rows[name].substr(0, cheat.row.size()), cheat.row) << name << ": " << rows[name];
    }
    EXPECT_EQ(*ReadWholeFile(Path("class/honest.proof")), HonestSwap);
}

TEST_F(GradeTest, NamesStayNamesInATable) {
    WriteFile("sheet.json", R"({"title": "=1+1", "exercises": [
        {"name": "swap", "premises": ["P&Q"], "goal": "[Q&(P)]", "points": 1.5},
        {"name": "or", "goal": "P | ~P"}]})");
    HandIn("=cmd|'A0'.proof", HonestSwap);
    HandIn("a \"b\",\n\x1B[2J\u200B.proof", HonestSwap);
    const Outcome csv = GradeClass("--csv");
    EXPECT_EQ(csv.output,
              "\"submission\",\"swap\",\"or\",\"points\",\"maximum\",\"reasons\"\n"
              "\"'=cmd|'A0'.proof\",1.5,0,1.5,2.5,\"or: no line is the goal (the last one, line "
              "4, says Q & P)\"\n"
              "\"a \"\"b\"\",  [2J?.proof\",1.5,0,1.5,2.5,\"or: no line is the goal (the last "
              "one, line 4, says Q & P)\"\n");
    fs::rename(Path("sheet.json"), Path("class/sheet.json"));  // where it is no submission
    const Outcome text = Grade({Path("class/sheet.json"), Path("class"), "--jobs", "9"});
    EXPECT_TRUE(text.output.starts_with("=1+1\n")) << text.output;
    EXPECT_NE(text.output.find("\na \"b\",  [2J?.proof  1.5/1.5  0/1  1.5/2.5\n"),
              text.output.npos);
    EXPECT_EQ(csv.status, 0);
}

TEST_F(GradeTest, LintTellsWhatIsWrongWithASheet) {
    fs::create_directory(directory / "lib");
    WriteFile("lib/known.proof", ProofOf({"Or Not: P | ~P"}));
    WriteFile("lib/broken.proof", ProofOf({"Axiom: P", "Join 1 1: P"}));
    WriteFile("good.proof", HonestSwap);
    struct Row {
        std::string exercise;
        std::string fault;
    };
    const std::vector<Row> rows = {
        {R"J("goal": "P & (Q")J", "exercise \"x\": goal \"P & (Q\": "},
        {R"J("goal": "x+1")J", "goal \"x+1\": it states nothing that could be proved"},
        {R"J("premises": ["P"])J", "exercise \"x\": \"goal\" is missing"},
        {R"J("goal": 7)J", "\"goal\" is no text in quotes"},
        {R"J("goal": "P", "goal": "Q")J", "\"goal\" stands twice in one place"},
        {R"J("goal": "P", "premisses": [])J", "there is no \"premisses\" in a sheet here"},
        {R"J("goal": "P", "premises": "Q")J", "\"premises\" is no list of texts"},
        {R"J("goal": "P", "premises": ["Q &"])J", "premise \"Q &\": "},
        {R"J("goal": "ALL(x):P(x)", "premises": ["ALL(y):P(y)"])J", "is the goal itself"},
        {R"J("goal": "P & P", "axioms": ["P&P"])J", "the axiom \"P&P\" is the goal itself"},
        {R"J("goal": "P", "axioms": ["Powerset"])J",
         "the axiom \"Powerset\" is none of the menus (did you mean \"Power Set\"?)\n"},
        {R"J("goal": "P", "axioms": ["number axiom 8"])J",
         "the axiom \"number axiom 8\" is none of the menus, and no statement: "},
        {R"J("goal": "P", "points": -1)J", "\"points\" is no number from 0 to 1000000"},
        {R"J("goal": "P", "library": "gone")J", "gone is no directory"},
        {R"J("goal": "P", "library": "lib")J", "broken.proof: wrong: line 2 does not follow"},
        {R"J("goal": "P | ~P", "library": "lib")J", "proves the goal already, in known.proof"},
        {R"J("goal": "Q & P", "solution": "good.proof")J",
         "good.proof has no points: line 4 is the goal, but it rests on the premise in line 1"},
        {R"J("goal": "Q & P", "solution": "gone.proof")J", "the file can't be read"},
        {R"J("goal": "P"}, {"name": "x", "goal": "Q")J", "another exercise has the same name"},
        {R"J("goal": "P",)J", "the sheet is no good JSON: parse error at line 1, column"},
        {R"J("goal": "Q & P", "premises": ["P & Q"], "solution": "good.proof",
            "axioms": ["definitions", "Subset", "x ∈ s", "definition of <=", "ring axiom 13"])J",
         ""},
    };
    for (const Row& row : rows) {
        WriteFile("sheet.json",
                  R"({"title": "t", "exercises": [{"name": "x", )" + row.exercise + "}]}");
        const Outcome outcome = Grade({"--lint", Path("sheet.json")});
        EXPECT_EQ(outcome.status, row.fault.empty() ? 0 : 1) << row.exercise;
        EXPECT_EQ(outcome.error.empty(), row.fault.empty()) << outcome.error;
        EXPECT_NE(outcome.error.find(row.fault), outcome.error.npos) << outcome.error;
    }
    EXPECT_EQ(Grade({"--lint", Path("sheet.json")}).output, "x: Q & P (1)\n");
    WriteFile("sheet.json", "[]");
    EXPECT_EQ(Grade({Path("sheet.json"), Path("class")}).status, 2);
}

TEST_F(GradeTest, AxiomsAndTheoremsMayBeUsedThatTheSheetAllows) {
    WriteFile("sheet.json", R"J({"title": "t", "exercises": [
        {"name": "full", "goal": "R | S", "axioms": ["R&R"]},
        {"name": "theorem", "goal": "R & R | T | U", "axioms": ["R&R"], "library": "lib"},
        {"name": "only the theorem", "goal": "R & R | T | U", "library": "lib"},
        {"name": "number", "goal": "Set(n) & 1@n", "axioms": ["Set(n)"], "premises": ["1@n"]},
        {"name": "known", "goal": "V | ~V", "library": "lib"}]})J");
    fs::create_directory(directory / "lib");
    WriteFile("lib/t.proof", ProofOf({"Axiom: R & R", "Arb Or 1: R & R | T"}));
    WriteFile("lib/u.proof", ProofOf({"Or Not: V | ~V"}));
    WriteFile("lib/v.proof", ProofOf({"Axiom: V | ~V", "Arb Or 1: V | ~V | W"}));
    HandIn("a.proof", ProofOf({"Axiom: R & R", "Split 1: R", "Arb Or 2: R | S"}));
    HandIn("b.proof", ProofOf({"Axiom: R & R | T", "Arb Or 1: R & R | T | U"}));
    HandIn("c.proof", ProofOf({"Axiom: Set(n)", "Axiom: 1 @ n", "Join 1 2: Set(n) & 1 @ n"}));
    HandIn("d.proof", ProofOf({"Axiom: V | ~V | W", "Axiom: V | ~V",
                               "Join 1 2: [V | ~V | W] & [V | ~V]", "Split 3: V | ~V"}));
    const std::map<std::string, std::string> expected = {
        {"d.proof",
         "0: line 4 is the goal, but it rests on the axiom in line 2, which says the same"},
        {"a.proof", "1: no line is the goal (the last one, line 3, says R | S)"},
        {"b.proof",
         "1: line 2 is the goal, but it rests on axiom R & R by way of a theorem, which is not "
         "allowed here"},
        {"c.proof", "1: no line is the goal (the last one, line 3, says Set(n) & 1 @ n)"}};
    EXPECT_EQ(Rows(GradeClass()), expected);
}

// What the manual shows is what comes out, and who looks for the proofs' origin finds it.
TEST_F(GradeTest, TheExampleClassIsAsTheManualHasIt) {
    const fs::path source(TESSARYN_SOURCE_DIR);
    const fs::path before = fs::current_path();
    const fs::path classroom = source / "examples/classroom";
    fs::copy(source / "examples", directory);
    fs::current_path(directory);
    EXPECT_EQ(RunScript(*ReadWholeFile(classroom / "solutions/chain.script")).error, "");
    fs::current_path(before);
    WriteFile("emil.proof",
              ProofOf({"Axiom: Set(n)", "Axiom: 1 @ n", "Detach 1 2: ALL(k):[k @ n => 1+k=k+1]"}));
    fs::rename(Path("implications-chain.proof"), Path("jonas.proof"));
    for (const auto& entry : fs::recursive_directory_iterator(classroom / "submissions")) {
        if (entry.path().extension() != ".proof") continue;
        EXPECT_EQ(LinesOf(entry.path()), LinesOf(Path(entry.path().filename()))) << entry.path();
    }
    const std::string sheet = (classroom / "sheet.json").string();
    EXPECT_EQ(Grade({"--lint", sheet}).error, "");
    const Outcome outcome = Grade({sheet, (classroom / "submissions").string()});
    EXPECT_EQ(outcome.status, 0);
    const std::string page = *ReadWholeFile((source / "docs/manual/grading.md").string());
    EXPECT_NE(page.find("```\n" + outcome.output + "```\n"), page.npos) << outcome.output;
}

}  // namespace
}  // namespace tessaryn

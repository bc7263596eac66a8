// The commands of tessaryn-cli: exit status, and output byte for byte.
#include "cli/Call.h"

#include <gtest/gtest.h>

#include <fstream>
#include <nlohmann/json.hpp>

#include "Workbench.h"
#include "platform/Files.h"

namespace tessaryn {
namespace {

TEST(CommandLine, WrongUseShowsTheUsage) {
    const std::vector<std::vector<std::string>> rows = {
        {},
        {""},
        {"--nonsense"},
        {"run"},
        {"run", "a", "b"},
        {"run", "--fast", "a"},
        {"run", "--settings", ""},
        {"run", ""},
        {"parse", "x"},
        {"same", "x"},
        {"dump"},
        {"--help", "me"},
        {"html", "a"},
        {"print", "a", "b", "c"},
        {"check", "--json"},
        {"check", "--every", "a"},
        {"run", "--no-files", "--settings", "d", "a"},
        {"grade", "a"},
        {"grade", "--lint", "a", "b"},
        {"grade", "--jobs", "0", "a", "b"},
        {"grade", "--seconds", "x", "a", "b"},
    };
    for (const auto& row : rows) {
        const Outcome outcome = Call(row);
        EXPECT_EQ(outcome.status, 2) << (row.empty() ? "" : row[0]);
        EXPECT_EQ(outcome.output, "");
        EXPECT_TRUE(outcome.error.starts_with("usage: tessaryn-cli run")) << outcome.error;
    }
    EXPECT_EQ(Call({"--version"}).output, "tessaryn-cli 2.0\n");
    EXPECT_EQ(Call({"--help"}).status, 0);
}

TEST(CommandLine, RunTakesAFileOrStandardInput) {
    const Outcome piped = Call({"run", "-"}, "echo \"hello\"\nexpect count 1\n");
    EXPECT_EQ(piped.status, 1);
    EXPECT_EQ(piped.output, "hello\n");
    EXPECT_EQ(piped.error, "-:2: the number of lines is 0, expected 1\n");

    const std::string file = ::testing::TempDir() + "run.script";
    std::ofstream(file) << "\nclick 7\n";
    EXPECT_EQ(Call({"run", file}).error, file + ":2: there is no line 7\n");
    EXPECT_EQ(Call({"run", "--check", "--hidden", file}).status, 1);
    EXPECT_EQ(Call({"run", "/nowhere/x.script"}).status, 1);
    EXPECT_EQ(Call({"run", "--no-files", "-"}, "save \"x\"\n").error,
              "-:1: nothing can be opened, saved or printed here\n");
    EXPECT_EQ(Call({"run", ::testing::TempDir()}).status, 1);
}

TEST(CommandLine, ParsePrintsTables) {
    const Outcome outcome = Call({"parse"}, "\"P\"\n\"x@s\"\n\"é\"");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.output,
              R"json({"error":"","errorPos":0,)json"
              R"json("tokens":[["(",0,3,1,false],["P",1,0,0,false],[")",0,1,1,false]],)json"
              R"json("nodes":[[25,"P",0,0]],"canonical":"P","freeVars":""})json"
              "\n"
              R"json({"error":"","errorPos":0,"tokens":[["(",0,9,3,false],)json"
              R"json(["(",0,4,1,false],["x",1,0,0,false],[")",0,2,1,false],["@",2,0,0,false],)json"
              R"json(["(",0,8,2,false],["s",3,0,0,false],[")",0,6,2,false],[")",0,1,3,false]],)json"
              R"json("nodes":[[1,"x",0,0],[1,"s",0,0],[22,"",1,2]],)json"
              R"json("canonical":"x @ s","freeVars":" x s "})json"
              "\n"
              R"json({"error":"18. Illegal character é","errorPos":1})json"
              "\n");
}

TEST(CommandLine, ParseStopsAtWhatIsNoString) {
    for (const char* line : {"P", "", "1", "null", "[\"P\"]", "\"P", "\"\xff\"", "\"P\" \"Q\""}) {
        const Outcome outcome = Call({"parse"}, "\"P\"\n" + std::string(line) + "\n\"Q\"\n");
        EXPECT_EQ(outcome.status, 1) << line;
        EXPECT_EQ(outcome.error, "stdin:2: the line is no JSON string\n");
        EXPECT_EQ(std::count(outcome.output.begin(), outcome.output.end(), '\n'), 1);
    }
}

TEST(CommandLine, ParseSurvivesHostileText) {
    const std::string deep = std::string(20000, '(') + "x" + std::string(20000, ')');
    EXPECT_EQ(Call({"parse"}, nlohmann::json(deep).dump() + "\n\"\"\n\"\\u0000\"\n").status, 0);
    EXPECT_EQ(Call({"parse"}, std::string(100000, '[')).status, 1);
}

TEST(CommandLine, SameComparesPairs) {
    const Outcome outcome = Call({"same"},
                                 "[\"ALL(x):P(x)\",\"ALL(y):[P(y)]\"]\n"
                                 "[\"P\",\"Q\"]\n[\"P &\",\"P &\"]");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.output, "true\nfalse\nfalse\n");
    for (const char* line : {"", "\"P\"", "[\"P\"]", "[\"P\",1]", "[\"P\",\"Q\",\"R\"]"}) {
        EXPECT_EQ(Call({"same"}, std::string(line) + "\n").error,
                  "stdin:1: the line is no JSON array of two strings\n");
    }
}

// The path of a proof of one line.
std::string SavedProof(const std::string& name) {
    std::string path = ::testing::TempDir() + name;
    EXPECT_EQ(Build(EnterPremise("x @ s") + "save " + Quoted(path) + "\n"), "");
    return path;
}

TEST(CommandLine, CheckTellsWhatAProofRestsOn) {
    const std::string file = SavedProof("good.proof");
    EXPECT_EQ(Call({"check", file}).output, file + ": rests on premise x @ s in line 1\n");
    EXPECT_EQ(Call({"check", "--all", file}).output,
              file + ": rests on premise x @ s in line 1\n" + file +
                  ":1: x @ s: rests on premise x @ s in line 1\n");
    EXPECT_EQ(nlohmann::json::parse(Call({"check", "--json", file}).output),
              nlohmann::json::parse(R"({"file":")" + file + R"json(","line":0,"reason":"",
                  "verdict":"accepted","statements":[{"inForce":true,"line":1,"rule":"Premise",
                  "text":"x @ s","restsOn":[{"kind":"premise","line":1,"text":"x @ s"}]}]})json"));

    // A line of a closed block rests on its premise, and on no witness that comes later.
    const std::string block = ::testing::TempDir() + "block.proof";
    ASSERT_EQ(
        Build(EnterAxiom("EXIST(x):P(x)") + EnterPremise("Q") + "choose optConclusion\n" +
              "choose optSpec\nclick 1\nset Text1 \"w\"\nchoose Continue\nsave " + Quoted(block)),
        "");
    const std::string axiom = "rests on axiom EXIST(x):P(x) in line 1";
    EXPECT_EQ(Call({"check", "--all", block}).output,
              block + ": " + axiom + ", the choice of w in line 4\n" + block +
                  ":1: EXIST(x):P(x): " + axiom + "\n" + block +
                  ":2: Q: rests on premise Q in line 2\n" + block + ":3: Q => Q: proved\n" + block +
                  ":4: P(w): " + axiom + ", the choice of w in line 4\n");

    std::string bytes = *ReadWholeFile(file);
    bytes[10 + 2 + 2] = 16;  // the rule, Detach
    const std::string forged = ::testing::TempDir() + "forged.proof";
    std::ofstream(forged, std::ios::binary) << bytes;
    const Outcome wrong = Call({"check", file, forged, "/nowhere/x.proof"});
    EXPECT_EQ(wrong.status, 1);
    EXPECT_EQ(wrong.error, "/nowhere/x.proof: the file can't be read\n");
    const std::string sentence = "line 1 is annotated otherwise than its record, Detach, says\n";
    EXPECT_TRUE(wrong.output.ends_with(forged + ": wrong: " + sentence));
    EXPECT_EQ(Call({"check", file, "/nowhere/x.proof"}).status, 2);
    EXPECT_EQ(Call({"run", "--check", "-"}, "open " + Quoted(forged)).error, "-:1: " + sentence);
    EXPECT_EQ(Call({"run", "-"}, "open " + Quoted(forged)).status, 0);
}

TEST(CommandLine, DumpOpensAProof) {
    const std::string file = SavedProof("dump.proof");
    const Outcome outcome = Call({"dump", file});
    EXPECT_EQ(outcome.status, 0);
    const auto state = nlohmann::ordered_json::parse(outcome.output);
    EXPECT_EQ(state["fileName"], file);
    EXPECT_EQ(state["title"], " Tessaryn 2.0  -  " + file);
    EXPECT_EQ(state["proofText"], "1\tx @ s\r\n\tPremise\r\n\r\n");
    EXPECT_EQ(state["view"]["text"], "1\tx e s\r\n\tPremise\r\n\r\n");
    EXPECT_EQ(state["proofChanged"], false);

    std::ofstream(file) << "no proof";
    const Outcome refused = Call({"dump", file});
    EXPECT_EQ(refused.status, 1);
    EXPECT_EQ(refused.output, "");
    EXPECT_TRUE(refused.error.starts_with(file + ": Open: Unable to open proof file"));
    EXPECT_EQ(Call({"dump", "/nowhere/x.proof"}).status, 1);
}

TEST(CommandLine, HtmlAndPrintWriteFiles) {
    const std::string proof = SavedProof("pages of ü.proof");
    const std::string page = ::testing::TempDir() + "page.html";
    EXPECT_EQ(Call({"html", proof, page}).error, "");
    EXPECT_TRUE(ReadWholeFile(page).value_or("").ends_with("</pre></body></html>\r\n"));
    const std::string markedUp = ::testing::TempDir() + "marked up.proof";
    const Outcome run =
        Call({"run", "-"},
             "choose optCaption\nset RTB \"<i>x</i>\"\n"
             "choose Continue\nfile " +
                 Quoted(page) + "\nchoose optHTML\nsave " + Quoted(markedUp) + "\n");
    const Outcome html = Call({"html", markedUp, page});
    for (const auto& [outcome, named] : {std::pair(run, std::string("-")), {html, markedUp}}) {
        EXPECT_EQ(outcome.status, 0);
        EXPECT_TRUE(outcome.error.starts_with(named + ": The caption holds \"<\""));
    }
    const std::string paper = ::testing::TempDir() + "page.txt";
    EXPECT_EQ(Call({"print", proof, paper}).status, 0);
    EXPECT_EQ(ReadWholeFile(paper), "1\tx ε s\n\tPremise\n\n" + proof + "\n");
    for (const char* command : {"html", "latex", "print"}) {
        EXPECT_EQ(Call({command, proof, ::testing::TempDir()}).status, 1);
        EXPECT_EQ(Call({command, "/nowhere/x.proof", page}).status, 1);
    }
}

}  // namespace
}  // namespace tessaryn

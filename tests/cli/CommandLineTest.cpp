// The commands of tessaryn-cli: exit status, and output byte for byte.
#include "cli/Call.h"

#include <gtest/gtest.h>

#include <fstream>
#include <nlohmann/json.hpp>
#include <regex>
#include <set>

#include "Workbench.h"
#include "cli/CommandText.h"
#include "platform/Files.h"

namespace tessaryn {
namespace {

TEST(CommandLine, WrongUseIsToldWithWhatWasMeant) {
    struct Row {
        std::vector<std::string> words;
        std::string reason;
    };
    const std::vector<Row> rows = {
        {{}, "no command is given"},
        {{""}, "there is no command "},
        {{"--nonsense"}, "there is no command --nonsense"},
        {{"--hlep"}, "there is no command --hlep; did you mean --help?"},
        {{"chekc", "a"}, "there is no command chekc; did you mean check?"},
        {{"help", "gade"}, "there is no command gade; did you mean grade?"},
        {{"--help", "me"}, "nothing may follow here: me"},
        {{"run"}, "no file is named"},
        {{"run", "a", "b"}, "nothing may follow here: b"},
        {{"run", "--fast", "a"}, "there is no option --fast"},
        {{"run", "-check", "a"}, "there is no option -check; did you mean --check?"},
        {{"run", "--settings", ""}, "--settings needs a value, DIR"},
        {{"run", ""}, "a name is empty"},
        {{"run", "--no-files", "--settings", "d", "a"}, "--no-files leaves no settings to be read"},
        {{"parse", "x"}, "nothing may follow here: x"},
        {{"html", "a"}, "a file is missing"},
        {{"html", "--Flod", "a", "b"}, "there is no option --Flod; did you mean --fold?"},
        {{"print", "a", "b", "c"}, "nothing may follow here: c"},
        {{"fits", "a", "0"}, "there is no line 0"},
        {{"check", "--json"}, "no file is named"},
        {{"check", "--rests-on", "d", "a"}, "nothing may follow here: a"},
        {{"grade", "--lint", "a", "b"}, "nothing may follow here: b"},
        {{"grade", "--jobs", "0", "a", "b"}, "--jobs takes a number from 1 to 256, not 0"},
        {{"grade", "a", "b", "--seconds"}, "--seconds needs a value, N"},
    };
    for (const auto& [words, reason] : rows) {
        const Outcome outcome = Call(words);
        EXPECT_EQ(outcome.status, 2) << reason;
        EXPECT_EQ(outcome.output, "");
        EXPECT_TRUE(outcome.error.starts_with("tessaryn-cli: " + reason + "\nusage: tessaryn-cli "))
            << outcome.error;
    }
    EXPECT_EQ(Call({"dump", "--", "--help"}).error.substr(0, 7), "--help:");  // is a file there
    EXPECT_EQ(Call({"run", "-"}, "chose optJoin").error,
              "-:1: there is no action chose; did you mean choose?\n");
    EXPECT_EQ(Call({"run", "-"}, "choose optjion").error,
              "-:1: Proof has no optjion; did you mean optJoin?\n");
}

// The words that begin with a prefix.
std::set<std::string> WordsIn(const std::string& text, const std::string& pattern) {
    const std::regex words(pattern);
    std::set<std::string> found;
    for (std::sregex_iterator at(text.begin(), text.end(), words), end; at != end; ++at) {
        found.insert((*at)[1]);
    }
    return found;
}

TEST(CommandLine, HelpAndManualPageNameTheSameCommandsAndOptions) {
    EXPECT_EQ(Call({"--version"}).output, "tessaryn-cli 2.0\n");
    const std::string page =
        std::regex_replace(*ReadWholeFile(TESSARYN_SOURCE_DIR "/packaging/man/tessaryn-cli.1.in"),
                           std::regex("\\\\-"), "-");
    const std::string help = Call({"help"}).output;
    EXPECT_EQ(help, Call({"--help"}).output);
    EXPECT_EQ(WordsIn(page, "(--[a-z][a-z-]+)"), WordsIn(help, "(--[a-z][a-z-]+)"));
    EXPECT_EQ(WordsIn(page, "\n\\.TP\n\\.BI? ([a-z]+)"), WordsIn(help, "tessaryn-cli ([a-z]+)"));
    for (const CommandText& command : CommandTexts()) {
        const std::string one = Call({command.name, "--help"}).output;
        EXPECT_EQ(one, Call({"help", command.name}).output);
        EXPECT_NE(one.find("\nExample:\n  "), one.npos);
        std::set<std::string> options;
        for (const OptionText& option : command.options) options.insert(option.name);
        EXPECT_EQ(WordsIn(UsageOf(command), "(--[a-z][a-z-]+)"), options) << command.name;
    }
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

// Theorems of a directory of proofs, used again as axioms.
#include <gtest/gtest.h>

#include <algorithm>
#include <regex>
#include <sstream>

#include "OwnDirectory.h"
#include "check/WrittenFile.h"
#include "cli/Call.h"
#include "cli/ScriptRunner.h"
#include "document/ProofFile.h"
#include "platform/Files.h"

namespace tessaryn {
namespace {

class Library : public OwnDirectory {
  protected:
    Library() { std::filesystem::create_directory(directory / "sub"); }

    void Write(const std::string& name, const std::vector<std::string>& notations) {
        WriteFile(name, ProofOf(notations));
    }

    // The exit status, and what is printed, the messages last. Paths without the directory.
    std::string Check(std::vector<std::string> words) {
        words.insert(words.begin(), "check");
        const Outcome outcome = Call(words);
        std::string said = std::to_string(outcome.status) + '\n' + outcome.output + outcome.error;
        const std::string prefix = directory.string() + "/";
        for (std::size_t at; (at = said.find(prefix)) != said.npos;) said.erase(at, prefix.size());
        return said;
    }
};

TEST_F(Library, TheoremsCountByWhatTheySay) {
    const auto unions = [](const std::string& one, const std::string& other) {
        return "ALL(" + one + "):ALL(" + other + "):[Set(" + one + ") & Set(" + other +
               ") => EXIST(c):[Set(c) & ALL(d):[d @ c <=> d @ " + one + " | d @ " + other + "]]]";
    };
    Write("sub/one.proof",
          {"Pw Union: " + unions("a", "b"), "Axiom: Q(k)",
           "Arb Ante 1: Q(k) => " + unions("a", "b"), "Detach 3 2: " + unions("x", "y")});
    Write("two.proof", {"Axiom: " + unions("p", "q"), "Axiom: S", "Arb Or 2: S | T"});
    Write("three.proof", {"Axiom: S | T", "Join 1 1: [S | T] & [S | T]"});
    Write("four.proof", {"Axiom: [S | T] & [S | T]", "Arb Or 1: [S | T] & [S | T] | S"});
    Write("premise.proof", {"Premise: R", "Copy 1: R"});
    Write("witness.proof", {"Axiom: EXIST(a):W(a)", "E Spec 1 w: W(w)", "Copy 2: W(w)"});
    Write("assumes.proof", {"Axiom: R", "Copy 1: R"});
    Write("user.proof", {"Axiom: R", "Axiom: W(w)", "Axiom: S | T", "Join 1 2: R & W(w)",
                         "Join 4 3: R & W(w) & [S | T]"});
    EXPECT_EQ(
        Check({"--rests-on", directory.string()}),
        "0\n"
        "four.proof: [S | T] & [S | T] | S: rests on theorem three.proof, theorem two.proof, "
        "axiom S\n"
        "sub/one.proof: " +
            unions("x", "y") +
            ": rests on Pw Union, axiom Q(k) in line 2\n"
            "three.proof: [S | T] & [S | T]: rests on theorem two.proof, axiom S\n"
            "two.proof: S | T: rests on axiom S in line 2\n"
            "user.proof: R & W(w) & [S | T]: rests on axiom R in line 1, axiom W(w) in line 2, "
            "theorem two.proof, axiom S\n");
    EXPECT_EQ(Check({"--library", directory.string(), "--jobs", "3", Path("user.proof")}),
              "0\nuser.proof: rests on axiom R in line 1, axiom W(w) in line 2, theorem two.proof, "
              "axiom S\n");
    EXPECT_EQ(
        Check({Path("user.proof")}),
        "0\nuser.proof: rests on axiom R in line 1, axiom W(w) in line 2, axiom S | T in line "
        "3\n");
}

TEST_F(Library, CirclesAndForgeriesAreNoTheorems) {
    Write("x.proof", {"Axiom: A & B", "Split 1: A"});
    Write("y.proof", {"Axiom: A", "Or Not: B | ~B", "Join 1 1: A & A"});
    Write("z.proof", {"Axiom: A & A", "Split 1: A", "Arb Ante 2: C => A", "Axiom: C",
                      "Detach 3 4: A", "Join 5 5: A & A", "Or Not: C | ~C"});
    Write("forged.proof", {"Axiom: A", "Split 1: A & B"});
    EXPECT_EQ(Check({"--library", directory.string(), Path("x.proof")}),
              "0\nx.proof: rests on axiom A & B in line 1\n"
              "forged.proof: wrong: line 2 does not follow from line 1 by Split (line 1 is no "
              "conjunction)\n");
    Write("forged.proof", {"Axiom: A & A", "Arb Or 1: A & A | B", "Axiom: ~B",
                           "Join 1 3: A & A & ~B", "Axiom: A & A => A & B", "Detach 5 1: A & B"});
    EXPECT_EQ(Check({"--library", directory.string(), Path("z.proof"), Path("y.proof")}),
              "1\nz.proof: proved\ny.proof: wrong: theorems rest on themselves: x.proof, "
              "forged.proof, y.proof\n");
    EXPECT_EQ(Check({"--library", Path("nowhere"), Path("z.proof")}),
              "2\nnowhere: there is no such directory\n");
}

// Each proof of the examples is what its script leaves, tells its reader what it is about, has its
// place in the manual, and rests on nothing but axioms of the menus, some by way of each other.
TEST_F(Library, ExamplesStandBesideTheirScripts) {
    namespace fs = std::filesystem;
    const fs::path examples = fs::path(TESSARYN_SOURCE_DIR) / "examples";
    const fs::path before = fs::current_path();
    fs::current_path(directory);
    const std::string page = *ReadWholeFile((examples / "../docs/manual/examples.md").string());
    std::set<std::string> proofs{"sub"};
    for (const auto& entry : fs::directory_iterator(examples)) {
        const std::string name = entry.path().stem().string() + ".proof";
        if (entry.path().extension() != ".script") continue;
        EXPECT_EQ(RunScript(*ReadWholeFile(entry.path().string())).error, "") << entry.path();
        EXPECT_TRUE(ReadWholeFile(name) == ReadWholeFile((examples / name).string()))
            << name << ": packaging/examples builds it";
        EXPECT_NE(page.find("| `" + entry.path().stem().string() + "` |"), page.npos) << name;
        proofs.insert(name);
        const Document proof = *ReadProof(*ReadWholeFile(name));
        EXPECT_NE(proof.ProofCaption, "") << name;
        EXPECT_GT(proof.IntroEnd, 0) << name;
        std::istringstream introduction{std::string(ProofSlice(1, proof.IntroEnd, proof))};
        for (std::string line; std::getline(introduction, line);)
            EXPECT_LE(line.size(), 80U) << line;
    }
    fs::current_path(before);
    EXPECT_EQ(Names(), proofs);
    const std::string theorems = Check({"--rests-on", directory.string()});
    EXPECT_EQ(std::count(theorems.begin(), theorems.end(), '\n'), std::ssize(proofs));
    EXPECT_TRUE(theorems.starts_with("0\n")) << theorems;
    EXPECT_FALSE(std::regex_search(theorems, std::regex("premise|[^r] axiom"))) << theorems;
    EXPECT_EQ(Check({"--library", directory.string(), Path("summands-change-places.proof")}),
              "0\nsummands-change-places.proof: rests on theorem addition-is-associative.proof, "
              "number axiom 3, number axiom 6, Induction for n of line 1 of "
              "addition-is-associative.proof, theorem addition-commutes.proof, number axiom 2, "
              "theorem one-commutes.proof, Induction for n of line 1 of one-commutes.proof, "
              "Induction for n of line 1 of addition-commutes.proof\n");
}

}  // namespace
}  // namespace tessaryn

// Small forged proofs, each with what the checker has to say about it.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>

#include "Repeated.h"
#include "check/Check.h"
#include "check/WrittenFile.h"

namespace tessaryn {
namespace {

using check::CheckedProof;
using check::Verdict;

// A table begins with the lines of a good proof, and "= " with what it rests on. Then come its
// forgeries, each the proof with something changed:
//
//   3 Detach 1 2: P      another line 3           3 .FreeVars " x "   a field of its record
//   3 -                  without line 3           + Copy 1: P         a line more at the end
//   2 <> 3               the two exchanged
//
// and behind " :: " the sentence that must come, or what the proof rests on all the same. A blank
// line ends the table. Other lines begin with "#".
struct Forgery {
    std::string where;
    std::string file;
    std::string expected;
};

// What the checker says, the sentence with its line alone ahead of what is wrong with it.
std::string Said(const std::string& file) {
    const check::CheckedProof proof = check::CheckProof(file);
    if (proof.verdict != check::Verdict::Refused) return Summary(proof);
    const std::string& sentence = proof.sentence;
    const std::size_t reason = sentence.find(" (");
    if (sentence.find(" does not follow") == sentence.npos) return sentence;
    return "line " + std::to_string(proof.faultyLine) + ": " +
           sentence.substr(reason + 2, sentence.size() - reason - 3);
}

WrittenLines Forged(WrittenLines lines, std::string change) {
    for (std::size_t end = 0; !change.empty(); change.erase(0, end)) {
        end = std::min(change.find(" ; "), change.size());
        const std::string one = change.substr(0, end);
        end = std::min(end + 3, change.size());
        const std::string number = one.substr(0, one.find(' '));
        const std::string what = one.substr(number.size() + 1);
        if (number == "+") {
            lines.push_back(ReadLine(what));
            continue;
        }
        const std::size_t at = static_cast<std::size_t>(std::stoi(number)) - 1;
        if (what == "-") {
            lines.erase(lines.begin() + static_cast<std::ptrdiff_t>(at));
        } else if (what.starts_with("<> ")) {
            std::swap(lines[at], lines[static_cast<std::size_t>(std::stoi(what.substr(3))) - 1]);
        } else if (what.starts_with('.')) {
            const std::size_t blank = what.find(' ');
            const std::string value = what.substr(blank + 1);
            const std::string field = what.substr(1, blank - 1);
            if (field == "Comment") lines[at].comment = value;
            if (field == "Arg1") lines[at].arg1 = std::stoi(value);
            lines[at].fields[field] =
                Unescaped(value.starts_with('"') ? value.substr(1, value.size() - 2) : value);
        } else {
            lines[at] = ReadLine(what);
        }
    }
    return lines;
}

std::vector<Forgery> Read(const std::string& path) {
    std::vector<Forgery> forgeries;
    WrittenLines good;
    bool hasAll = false;
    std::ifstream table(path);
    int number = 0;
    for (std::string line; std::getline(table, line);) {
        const std::string where = path + ":" + std::to_string(++number);
        if (line.starts_with('#')) continue;
        if (line.empty()) {
            good.clear();
            hasAll = false;
        } else if (line.starts_with("= ")) {
            forgeries.push_back({where, FileOf(good), line.substr(2)});
            hasAll = true;
        } else if (hasAll) {
            const std::size_t expected = line.find(" :: ");
            forgeries.push_back(
                {where, FileOf(Forged(good, line.substr(0, expected))), line.substr(expected + 4)});
        } else {
            good.push_back(ReadLine(line));
        }
    }
    return forgeries;
}

std::vector<Forgery> AllForgeries() {
    std::vector<Forgery> all;
    const std::filesystem::path folder =
        std::filesystem::path(TESSARYN_SOURCE_DIR) / "tests/check/forgeries";
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        for (Forgery& forgery : Read(entry.path())) all.push_back(std::move(forgery));
    }
    return all;
}

TEST(Forgeries, AreToldForWhatTheyAre) {
    const std::vector<Forgery> forgeries = AllForgeries();
    EXPECT_GT(forgeries.size(), 200U);
    for (const Forgery& forgery : forgeries) {
        const std::string inFull = "wrong: " + check::CheckProof(forgery.file).sentence;
        const std::string said = inFull == forgery.expected ? inFull : Said(forgery.file);
        EXPECT_EQ(said, forgery.expected) << forgery.where;
    }
}

// The tables can tell: checkers that do not look and always say the same fall through.
TEST(Forgeries, FindOutACheckerThatDoesNotLook) {
    const std::vector<Forgery> forgeries = AllForgeries();
    for (const char* always : {"proved", "line 1: it is refused", "declined"}) {
        const auto differs = [&](const Forgery& forgery) { return forgery.expected != always; };
        EXPECT_GT(std::count_if(forgeries.begin(), forgeries.end(), differs), 180) << always;
    }
}

CheckedProof CheckedLines(const std::vector<std::string>& notations) {
    return check::CheckProof(ProofOf(notations));
}

TEST(CheckedFiles, AFileThatIsCutIsRefused) {
    const std::string file = FileOf({ReadLine("Premise: P(x)"), ReadLine("Copy 1: P(x)")});
    for (std::size_t length = 0; length < file.size(); ++length) {
        const CheckedProof proof = check::CheckProof(file.substr(0, length));
        ASSERT_EQ(proof.verdict, Verdict::Refused) << length;
        EXPECT_EQ(proof.sentence, length < 10 ? "it is no proof file" : "bytes are missing");
        EXPECT_EQ(proof.Count(), 0);
    }
    EXPECT_EQ(check::CheckProof(file + "and more").sentence, "");
    EXPECT_EQ(Summary(check::CheckProof("Tessaryn 1" + std::string(6, '\0'))), "no statement");
    EXPECT_EQ(Summary(check::CheckProof("Tessaryn 1" + std::string("\0\0\0\0\5\0a\r\n\r\n", 11))),
              "no statement");
    EXPECT_EQ(check::CheckProof("Tessaryn 1\xFF\xFF" + std::string(4, '\0')).sentence,
              "its number of statements is negative");
    EXPECT_EQ(check::CheckProof("Tessaryn 1" + std::string("\0\0\0\0\3\0abc", 9)).sentence,
              "its introduction has no end");
}

TEST(CheckedFiles, WhatGoesBeyondALimitIsDeclined) {
    const std::string tooLong = "P(" + Repeated("x", 70000) + ")";
    EXPECT_EQ(CheckedLines({"Axiom: " + tooLong}).verdict, Verdict::Declined);
    for (const char* part : {"~", "P & [P | "}) {
        const std::string deep = Repeated(part, 2500) + "P";
        EXPECT_EQ(CheckedLines({"Axiom: " + deep}).verdict, Verdict::Declined) << part;
    }
    EXPECT_EQ(CheckedLines({"Axiom: " + Repeated("P & ", 2500) + "P"}).verdict, Verdict::Declined);
    EXPECT_EQ(CheckedLines({"Axiom: " + Repeated("~", 1900) + "P"}).verdict, Verdict::Accepted);
    // Whether each f may be taken away is asked at each f, and there is another variable at the
    // end.
    const auto term = [](const char* x) { return Repeated("f(", 1500) + x + Repeated(")", 1500); };
    const CheckedProof search = CheckedLines({"Axiom: f(x)=x", "Axiom: P(" + term("x") + ",y)",
                                              "Substitute 1 2: P(" + term("y") + ",y)"});
    EXPECT_EQ(search.sentence, "line 3 cannot be judged: that takes too long");
}

TEST(CheckedFiles, KeysAreThoseOfStatementsUpToBoundNames) {
    const CheckedProof proof =
        CheckedLines({"Axiom: ALL(a):[P(a)\\n=> EXIST(b):Q(a,b)] & ALL(b):R(b,x)",
                      "Axiom: ALL(x):[P(x) => EXIST(a):Q(x,a)] & ALL(a):R(a,y)",
                      "Axiom: ALL(b):[P(b) => EXIST(a):Q(b,a)] & ALL(a):R(a,x)",
                      "Axiom: ALL(a):[P(a) => EXIST(b):Q(b,a)] & ALL(b):R(b,x)"});
    ASSERT_EQ(proof.sentence, "");
    EXPECT_EQ(proof.Key(1), proof.Key(3));
    EXPECT_NE(proof.Key(1), proof.Key(2));
    EXPECT_NE(proof.Key(1), proof.Key(4));
}

}  // namespace
}  // namespace tessaryn

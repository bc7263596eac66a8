// Small forged proofs, each with what the checker has to say about it.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <functional>

#include "check/Check.h"
#include "check/WrittenFile.h"

namespace tessaryn {
namespace {

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
    if (proof.verdict == check::Verdict::Accepted) return Summary(proof);
    const std::string& sentence = proof.sentence;
    const std::size_t reason = sentence.find(" (");
    if (sentence.find(" does not follow") == sentence.npos) return sentence;
    return "line " + std::to_string(proof.faultyLine) + ": " +
           sentence.substr(reason + 2, sentence.size() - reason - 3);
}

WrittenLines Forged(WrittenLines lines, std::string change) {
    for (std::size_t end; !change.empty(); change.erase(0, end)) {
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
                value.starts_with('"') ? value.substr(1, value.size() - 2) : value;
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

using Checker = std::function<std::string(const std::string& file)>;

std::string Mistakes(const Checker& checker) {
    std::string mistakes;
    for (const Forgery& forgery : AllForgeries()) {
        const std::string said = checker(forgery.file);
        if (said != forgery.expected) mistakes += forgery.where + ": " + said + '\n';
    }
    return mistakes;
}

TEST(Forgeries, AreToldForWhatTheyAre) {
    EXPECT_GT(AllForgeries().size(), 200U);
    EXPECT_EQ(Mistakes(Said), "");
}

// The tables can tell: checkers that do not look and always say the same fall through.
TEST(Forgeries, FindOutACheckerThatDoesNotLook) {
    for (const char* always : {"proved", "line 1: it is refused", "declined"}) {
        const std::string mistakes = Mistakes([always](const std::string&) { return always; });
        EXPECT_GT(std::count(mistakes.begin(), mistakes.end(), '\n'), 180) << always;
    }
}

}  // namespace
}  // namespace tessaryn

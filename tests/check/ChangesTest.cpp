// Sound proofs with something changed at random. What the checker accepts all the same has to hold
// in the structures of the axioms.
#include <gtest/gtest.h>

#include <algorithm>
#include <utility>

#include "Wanted.h"
#include "check/Check.h"
#include "check/WrittenFile.h"
#include "document/Document.h"
#include "document/ProofFile.h"
#include "document/RuleNames.h"
#include "expr/Lex.h"
#include "rules/SoundProofs.h"

namespace tessaryn {
namespace {

class Changer {
  public:
    Changer(WrittenLines lines, const RandomNumber& random)
        : lines_(std::move(lines)), random_(random) {}

    WrittenLines Changed() {
        const std::size_t line = Any();
        switch (random_(8)) {
            case 0:
                Shift(lines_[line].arg1);
                break;
            case 1:
                Shift(lines_[line].arg2);
                break;
            case 2:
                lines_[line].rule = lines_[Any()].rule;
                break;
            case 3:
                std::swap(lines_[line], lines_[Any()]);
                break;
            case 4:
                Remove(line);
                break;
            default:
                ChangeToken(lines_[line].text);
        }
        for (WrittenLine& each : lines_) {
            each.fields.erase("FreeVars");
            each.fields.erase("FixedVars");
        }
        return lines_;
    }

  private:
    std::size_t Any() { return SoundAxioms + random_(lines_.size() - SoundAxioms); }
    void Shift(int& reference) { reference += static_cast<int>(random_(5)) - 2; }

    // The lines behind keep their references, with the numbers that the lines have then.
    void Remove(std::size_t line) {
        lines_.erase(lines_.begin() + static_cast<std::ptrdiff_t>(line));
        for (WrittenLine& each : lines_) {
            for (int* reference : {&each.arg1, &each.arg2}) {
                if (*reference > static_cast<int>(line)) --*reference;
            }
        }
    }

    void ChangeToken(std::string& text) {
        static const char* const others[] = {"x",  "y",   "k",     "m", "P", "Q", "~",
                                             "=>", "ALL", "EXIST", "&", "|", "a", "b"};
        const TokenList tokens = LexExpression(text).tokens;
        const TokenRec& token = tokens[1 + random_(tokens.size() - 1)];
        const char* const other = others[random_(std::size(others))];
        text.replace(static_cast<std::size_t>(token.Position - 1), token.Token.size(), other);
    }

    WrittenLines lines_;
    const RandomNumber& random_;
};

// In all structures. An axiom more is taken for a premise.
bool Holds(const std::string& file, std::vector<Structure>& structures) {
    Doc = ReadProof(file).value();
    for (int line = SoundAxioms + 1; line <= StmtCount; ++line) {
        if (At(line).Rule == Rule::Axiom) EditAt(line).Rule = Rule::Premise;
    }
    return std::all_of(structures.begin(), structures.end(), ProofHolds);
}

TEST(CheckedChanges, WhatIsAcceptedHolds) {
    std::vector<Structure> structures = StructuresOfTheAxioms();
    const RandomNumber random = RandomNumbers(7);
    int accepted = 0;
    const int changes = Wanted("TESSARYN_CHANGES", 3000);
    int left = changes;
    for (unsigned seed = 1; left > 0; ++seed) {
        ProvingUser user(seed);
        for (int step = 1; step <= 60 && StmtCount < 30; ++step) user.Step();
        const WrittenLines lines = OpenProofLines();
        if (StmtCount < SoundAxioms + 5) continue;
        for (int change = 0; change < 100 && left > 0; ++change, --left) {
            const std::string file = FileOf(Changer(lines, random).Changed());
            if (check::CheckProof(file).verdict != check::Verdict::Accepted) continue;
            ++accepted;
            ASSERT_TRUE(Holds(file, structures)) << "seed " << seed << '\n' << ProofText.View();
        }
    }
    EXPECT_GT(accepted, changes / 100) << "some changes are harmless";
    EXPECT_LT(accepted, changes / 2);
}

}  // namespace
}  // namespace tessaryn

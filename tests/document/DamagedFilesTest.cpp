// What opens is whole, however damaged the file was, and stays so under any commands.
#include <gtest/gtest.h>

#include <fstream>

#include "Workbench.h"
#include "cli/HeadlessPlatform.h"
#include "document/ProofFile.h"
#include "document/RandomWalk.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"
#include "mainwindow/RuleModes.h"

namespace tessaryn {
namespace {

// Blocks in blocks, side by side and open; comments, line breaks, an introduction, folded lines.
std::string Nested() {
    return Build(
        "choose optIntro\nset CommentBox \"Gr\u00fc\u00dfe @ all\"\nchoose Continue\n" +
        EnterPremise("P & Q") + "choose optSplit\nclick 1\n" +
        "click 2\nset CommentBox \"why\\r\\n\\tand how\"\nchoose Continue\n" +
        EnterPremise("ALL(a):[Pppppppppp(a) & Qqqqqqqqqqqqq(a)]\r\n=> R(x)") +
        "choose optJoin\nclick 4\nclick 3\nanswer No\nchoose optConclusion\nchoose Continue\n" +
        "choose optCopyStatement\nclick 6\nchoose optConclusion\n" + EnterPremise("x=y") +
        "choose optConclusion\n" + "choose Continue\n" + EnterPremise("EXIST(a):a=u") +
        "choose optSpec\nclick 11\n" + "set Text1 \"k\"\nchoose Continue\n" +
        EnterPremise("k=u => P") + "click 13\nset CommentBox \"\u20ac\"\nchoose Continue\n");
}

// Makes the Conclusions of two blocks, one inside the other, change places.
void CrossBlocks() {
    for (int outer = 1; outer <= StmtCount; ++outer) {
        if (!IsClosedPremise(At(outer))) continue;
        for (int inner = outer + 1; inner < At(outer).Arg1; ++inner) {
            if (!IsClosedPremise(At(inner))) continue;
            std::swap(EditAt(At(outer).Arg1).Arg1, EditAt(At(inner).Arg1).Arg1);
            return std::swap(EditAt(outer).Arg1, EditAt(inner).Arg1);
        }
    }
}

void DamageNumber(Statement& stmt, const RandomNumber& random) {
    int* const numbers[] = {&stmt.Rule,           &stmt.Arg1,      &stmt.Arg2,    &stmt.StartLine,
                            &stmt.EndUserComment, &stmt.StartStmt, &stmt.EndStmt, &stmt.StartRule,
                            &stmt.EndRule,        &stmt.NewNumber};
    const std::size_t which = random(std::size(numbers));
    const int change = static_cast<int>(random(9)) - 4;
    *numbers[which] += change;
    if (random(2) == 0) *numbers[(which + 1) % std::size(numbers)] += change;
}

void Damage(const RandomNumber& random) {
    Statement& stmt = EditAt(1 + static_cast<int>(random(static_cast<std::size_t>(StmtCount))));
    std::string* const lists[] = {&stmt.SpecName, &stmt.FreeVars, &stmt.FixedVars, &stmt.SpareVars};
    constexpr const char* names[] = {"", " ", "x", " x ", " y x u ", "\xC3", "\xE2\x82\xAC", "  "};
    constexpr std::string_view bytes = "\t\n\r4@\xA6\xC3 (P~";
    switch (random(6)) {
        case 0:
            return CrossBlocks();
        case 1:
            *lists[random(std::size(lists))] = names[random(std::size(names))];
            break;
        case 2:
            stmt.Flagged = !stmt.Flagged;
            break;
        case 3:
            return ProofText.Replace(random(ProofText.size()), 1,
                                     bytes.substr(random(bytes.size()), 1));
        default:
            DamageNumber(stmt, random);
    }
}

TEST(DamagedFiles, WhatOpensStaysWhole) {
    ASSERT_EQ(Nested(), "");
    const std::string whole = WriteProof();
    const std::string path = testing::TempDir() + "damaged.proof";
    int opened = 0;
    for (unsigned seed = 1; seed <= 1500; ++seed) {
        const RandomNumber random = RandomNumbers(seed);
        Doc = *ReadProof(whole);
        for (std::size_t damages = 1 + random(4); damages > 0; --damages) Damage(random);
        const std::string bytes = WriteProof();
        if (!ReadProof(bytes)) continue;
        ++opened;
        StartHeadless();
        std::ofstream(path, std::ios::binary) << bytes;
        ReadProofFile(path);
        ASSERT_FALSE(OperationCancelled);
        RandomWalk walk(random);
        for (int step = 0; step < 20; ++step) {
            ASSERT_EQ(BrokenDocumentLaw(), "") << "seed " << seed << ", step " << step;
            walk.Step();
        }
    }
    EXPECT_GT(opened, 500);
}

}  // namespace
}  // namespace tessaryn

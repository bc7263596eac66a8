// What opens is whole, however damaged the file was, and stays so under any commands.
#include <gtest/gtest.h>

#include <fstream>

#include "Workbench.h"
#include "cli/HeadlessPlatform.h"
#include "document/DamagedDocument.h"
#include "document/ProofFile.h"
#include "document/RandomWalk.h"
#include "mainwindow/ProgramState.h"

namespace tessaryn {
namespace {

// Blocks in blocks, side by side and open; comments, line breaks, an introduction, folded lines.
std::string Nested() {
    return Build(
        "choose optIntro\nset CommentBox \"Gr\u00fc\u00dfe @ all\"\nchoose Continue\n" +
        EnterPremise("P & Q") + "choose optSplit\nclick 1\n" +
        "click 2\nset CommentBox \"why\\r\\n\\tand how\"\nchoose Continue\n" +
        "click 3\nset CommentBox \"!\"\nchoose Continue\n" +
        EnterPremise("ALL(a):[Pppppppppp(a) & Qqqqqqqqqqqqq(a)]\r\n=> R(x)") +
        "choose optJoin\nclick 4\nclick 3\nanswer No\nchoose optConclusion\nchoose Continue\n" +
        "choose optCopyStatement\nclick 6\nchoose optConclusion\n" + EnterPremise("x=y") +
        "choose optConclusion\n" + "choose Continue\n" + EnterPremise("EXIST(a):a=u") +
        "choose optSpec\nclick 11\n" + "set Text1 \"k\"\nchoose Continue\n" +
        EnterPremise("k=u => P") + "click 13\nset CommentBox \"\u20ac\"\nchoose Continue\n");
}

TEST(DamagedFiles, WhatOpensStaysWhole) {
    ASSERT_EQ(Nested(), "");
    const std::string whole = WriteProof();
    const std::string path = testing::TempDir() + "damaged.proof";
    int opened = 0;
    for (unsigned seed = 1; seed <= 2000; ++seed) {
        const RandomNumber random = RandomNumbers(seed);
        Doc = *ReadProof(whole);
        for (std::size_t damages = 1 + random(4); damages > 0; --damages) DamageDocument(random);
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

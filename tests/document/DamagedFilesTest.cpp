// What opens is whole, however damaged the file was, and stays so under any commands.
#include <gtest/gtest.h>

#include <fstream>

#include "OwnDirectory.h"
#include "Steps.h"
#include "cli/HeadlessPlatform.h"
#include "document/DamagedDocument.h"
#include "document/ProofFile.h"
#include "document/RandomWalk.h"
#include "mainwindow/ProgramState.h"
#include "output/ProofCommands.h"

namespace tessaryn {
namespace {

// Blocks in blocks, side by side and open; comments, line breaks, an introduction, folded lines.
const char* const Nested =
    "Intro ; set CommentBox \"Gr\u00fc\u00dfe @ all\" ; choose Continue ; + P & Q ; Split 1"
    " ; click 2 ; set CommentBox \"why\\r\\n\\tand how\" ; choose Continue"
    " ; click 3 ; set CommentBox \"!\" ; choose Continue"
    " ; + ALL(a):[Pppppppppp(a) & Qqqqqqqqqqqqq(a)]\\r\\n=> R(x) ; Join 4 3 ; answer No"
    " ; Conclusion ; choose Continue ; CopyStatement 6 ; Conclusion ; + x=y ; Conclusion"
    " ; choose Continue ; + EXIST(a):a=u ; Spec 11 ; < k ; + k=u => P"
    " ; click 13 ; set CommentBox \"\u20ac\" ; choose Continue";

using DamagedFiles = OwnDirectory;

TEST_F(DamagedFiles, WhatOpensStaysWhole) {
    ASSERT_EQ(Do(Nested), "");
    const std::string whole = WriteProof();
    const std::string path = Path("damaged.proof");
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

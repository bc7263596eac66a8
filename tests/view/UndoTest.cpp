// When Undo and Redo can be chosen.
#include "view/Undo.h"

#include <gtest/gtest.h>

#include "Workbench.h"
#include "mainwindow/Proof.h"

namespace tessaryn {
namespace {

TEST(Undo, StepsBackOnceAndForthOnce) {
    const std::string one = EnterPremise("P");
    const std::string two = one + EnterPremise("Q");
    const std::string saved = "save " + Quoted(::testing::TempDir() + "undo.proof") + "\n";
    const std::string undo = "choose optUndo\n";
    const std::string redo = "choose optRedo\n";
    struct {
        std::string actions;
        bool canUndo;
        bool canRedo;
    } const rows[] = {
        {"", false, false},
        {one, false, false},  // nothing to go back to
        {two, true, false},
        {two + undo, false, true},
        {two + undo + redo, true, false},
        {two + undo + EnterPremise("R"), true, false},
        {two + "click 1 number\nchoose optHideDetails\n", true, false},
        {two + "choose optNew\nchoose cmdNo\n", false, false},
        {two + undo + "choose optNew\nchoose cmdNo\n", false, false},
        {two + saved + "choose optOpen\n", true, false},  // cancelled
        {two + saved + undo + saved + "open " + saved.substr(5), false, false},
    };
    for (const auto& row : rows) {
        ASSERT_EQ(Build(row.actions), "") << row.actions;
        EXPECT_EQ(Proof.optUndo.Enabled, row.canUndo) << row.actions;
        EXPECT_EQ(Proof.optRedo.Enabled, row.canRedo) << row.actions;
        EXPECT_EQ(Proof.cmdUndo.Enabled, row.canUndo) << row.actions;
        EXPECT_EQ(Proof.cmdRedo.Enabled, row.canRedo) << row.actions;
    }
}

}  // namespace
}  // namespace tessaryn

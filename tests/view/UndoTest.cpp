// When Undo and Redo can be chosen.
#include "view/Undo.h"

#include <gtest/gtest.h>

#include "Steps.h"
#include "cli/Script.h"
#include "mainwindow/Proof.h"

namespace tessaryn {
namespace {

TEST(Undo, StepsBackOnceAndForthOnce) {
    const std::string two = "+ P ; + Q ; ";
    const std::string path = Quoted(::testing::TempDir() + "undo.proof");
    struct {
        std::string steps;
        bool canUndo;
        bool canRedo;
    } const rows[] = {
        {"", false, false},
        {"+ P", false, false},  // nothing to go back to
        {two, true, false},
        {two + "Undo", false, true},
        {two + "Undo ; Redo", true, false},
        {two + "Undo ; + R", true, false},
        {two + "click 1 number ; HideDetails", true, false},
        {two + "New ; choose cmdNo", false, false},
        {two + "Undo ; New ; choose cmdNo", false, false},
        {two + "save " + path + " ; Open", true, false},  // cancelled
        {two + "save " + path + " ; Undo ; save " + path + " ; open " + path, false, false},
    };
    for (const auto& row : rows) {
        ASSERT_EQ(Do(row.steps), "");
        EXPECT_EQ(Proof.optUndo.Enabled, row.canUndo) << row.steps;
        EXPECT_EQ(Proof.cmdUndo.Enabled, row.canUndo) << row.steps;
        EXPECT_EQ(Proof.optRedo.Enabled, row.canRedo) << row.steps;
        EXPECT_EQ(Proof.cmdRedo.Enabled, row.canRedo) << row.steps;
    }
}

}  // namespace
}  // namespace tessaryn

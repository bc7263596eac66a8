// Whether a proof solves the exercises of a sheet.
#pragma once

#include <string>
#include <vector>

#include "check/Check.h"
#include "cli/Sheet.h"

namespace tessaryn {

// What came out for one exercise.
struct Finding {
    // From the least to the best: of several proofs that were handed in, the best counts.
    enum class Rank { NoGoal, FileAtFault, GoalUnsupported, Solved };
    Rank rank = Rank::NoGoal;
    int line = 0;        // that is the goal; 0 none
    std::string reason;  // why it is not solved, one sentence
};

struct Findings {
    bool judged = true;  // false: nobody can tell what this is worth
    std::vector<Finding> exercises;
};

// The same for all exercises of the sheet: the file is at fault.
Findings AtFault(const Sheet& sheet, const std::string& reason, bool judged);

Findings JudgeProof(const Sheet& sheet, const check::CheckedProof& proof);

// Reads a file that was handed in and judges it; a script is replayed without any access to files.
// Changes the globals, and no file can be opened from then on: for a process of its own.
Findings JudgeFile(const Sheet& sheet, const std::string& path);

// From one process to another.
std::string Packed(const Findings& findings);
Findings Unpacked(const std::string& packed);

}  // namespace tessaryn

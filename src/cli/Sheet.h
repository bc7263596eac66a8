// What a teacher sets: exercises, what each may rest on, and what it is worth. A sheet is a file of
// JSON that is written by hand; docs/manual/grading.md tells what may stand in it.
#pragma once

#include <memory>
#include <set>
#include <string>
#include <vector>

#include "cli/Library.h"

namespace tessaryn {

struct Exercise {
    std::string name;
    double points = 1;
    std::string goal;                  // in standard form
    std::string goalKey;               // as check::StatementKey gives it
    std::set<std::string> assumable;   // keys of the premises and of axioms that are given in full
    std::set<std::string> menuAxioms;  // names as check::MenuAxioms has them
    std::shared_ptr<const Library> library;  // none: nullptr
    std::string solution;                    // path of a proof or script; "" for none
};

struct Sheet {
    std::string title;
    std::vector<Exercise> exercises;
    std::vector<std::string> faults;    // why nothing can be graded by it, a sentence each
    std::vector<std::string> warnings;  // what is wrong with its libraries

    double Maximum() const;
};

// The libraries are read on so many threads.
Sheet ReadSheet(const std::string& path, int jobs);

}  // namespace tessaryn

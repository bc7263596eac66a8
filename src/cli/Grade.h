// Grades what a class has handed in.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace tessaryn {

struct GradeRequest {
    enum class Form { Table, Csv, Json };
    Form form = Form::Table;
    bool lint = false;  // look at the sheet alone
    int jobs = 1;       // submissions at a time
    int seconds = 10;   // for each file
    std::string sheet;
    std::vector<std::string> submissions;  // files and folders
};

// Prints the points of each submission and the reasons of those that are missing; progress goes to
// err. Exit status: 0 all were judged, 1 some could not be, 2 there is nothing to judge, or the
// sheet is at fault.
int Grade(const GradeRequest& request, std::ostream& out, std::ostream& err);

// Tells how the sheet reads, and on err what is wrong with it. Exit status: 0 all is well, 1
// something is wrong.
int LintSheet(const GradeRequest& request, std::ostream& out, std::ostream& err);

}  // namespace tessaryn

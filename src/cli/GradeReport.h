// The points of a class as a table for people, for a spreadsheet, and for programs.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

#include "cli/Judging.h"
#include "cli/Sheet.h"

namespace tessaryn {

struct Row {
    std::string name;
    Findings findings;

    double Points(const Sheet& sheet) const;
};

std::string PointsText(double points);  // "2", "1.5"

void PrintTable(const Sheet& sheet, const std::vector<Row>& rows, std::ostream& out);
// Names that a spreadsheet would take for a formula have a "'" ahead.
void PrintCsv(const Sheet& sheet, const std::vector<Row>& rows, std::ostream& out);
void PrintJson(const Sheet& sheet, const std::vector<Row>& rows, std::ostream& out);

}  // namespace tessaryn

#include "cli/GradeReport.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <ostream>
#include <sstream>
#include <utility>

#include "cli/Ink.h"
#include "cli/OnOneLine.h"
#include "text/Utf8.h"

namespace tessaryn {

namespace {

constexpr int LongestName = 40;  // in the table; in full with the reasons

double PointsFor(const Exercise& exercise, const Finding& finding) {
    return finding.rank == Finding::Rank::Solved ? exercise.points : 0;
}

std::string OfMaximum(double points, double maximum) {
    return PointsText(points) + "/" + PointsText(maximum);
}

// The cells of a row: points for each exercise, then all of them.
std::vector<std::string> Cells(const Sheet& sheet, const Row& row) {
    std::vector<std::string> cells;
    for (std::size_t i = 0; i < sheet.exercises.size(); ++i) {
        const Exercise& exercise = sheet.exercises[i];
        cells.push_back(OfMaximum(PointsFor(exercise, row.findings.exercises[i]), exercise.points));
    }
    cells.push_back(OfMaximum(row.Points(sheet), sheet.Maximum()));
    return cells;
}

std::string Padded(const std::string& text, int width, bool right) {
    const std::string blanks(static_cast<std::size_t>(std::max(0, width - CharacterCount(text))),
                             ' ');
    return right ? blanks + text : text + blanks;
}

// Of a cell: all points, some, none. A heading has no stroke in it.
Ink InkOf(const std::string& cell) {
    const std::size_t stroke = cell.find('/');
    if (stroke == cell.npos) return Ink::Plain;
    const std::string points = cell.substr(0, stroke);
    return points == cell.substr(stroke + 1) ? Ink::Good : points == "0" ? Ink::Bad : Ink::Doubtful;
}

// Names to the left, the rest to the right.
void PrintAligned(const std::vector<std::vector<std::string>>& lines, std::ostream& out) {
    std::vector<int> widths;
    for (const auto& line : lines) {
        widths.resize(line.size());
        for (std::size_t i = 0; i < line.size(); ++i) {
            widths[i] = std::max(widths[i], CharacterCount(line[i]));
        }
    }
    for (const auto& line : lines) {
        for (std::size_t i = 0; i < line.size(); ++i) {
            const Ink ink = i == 0 ? Ink::Plain : InkOf(line[i]);
            out << (i == 0 ? "" : "  ") << ink << Padded(line[i], widths[i], i > 0) << Ink::Plain;
        }
        out << '\n';
    }
}

// Exercises whose points a row misses for the same reason, and the reason.
struct Missed {
    std::vector<std::size_t> exercises;
    std::string reason;
};

std::vector<Missed> MissedBy(const Row& row) {
    std::vector<Missed> all;
    for (std::size_t i = 0; i < row.findings.exercises.size(); ++i) {
        const Finding& finding = row.findings.exercises[i];
        if (finding.rank == Finding::Rank::Solved) continue;
        const auto known = std::find_if(all.begin(), all.end(), [&](const Missed& missed) {
            return missed.reason == finding.reason;
        });
        if (known == all.end()) {
            all.push_back({{i}, finding.reason});
        } else {
            known->exercises.push_back(i);
        }
    }
    return all;
}

void PrintReasons(const Row& row, std::ostream& out) {
    const std::vector<Missed> all = MissedBy(row);
    if (!all.empty()) out << '\n' << OnOneLine(row.name) << '\n';
    for (const Missed& missed : all) {
        const bool isAll = missed.exercises.size() == row.findings.exercises.size();
        const char* between = "  ";
        for (const std::size_t i : missed.exercises) {
            if (!isAll) out << std::exchange(between, ", ") << i + 1;
        }
        out << (isAll ? "  all: " : ": ") << OnOneLine(missed.reason) << '\n';
    }
}

// A quoted cell. The first character decides whether a spreadsheet computes something.
std::string CsvCell(const std::string& text) {
    const std::string line = OnOneLine(text);
    std::string cell = "\"";
    if (line.find_first_of("=+-@|%") == line.find_first_not_of(" '\"") && !line.empty()) {
        cell += '\'';
    }
    for (const char c : line) cell += c == '"' ? std::string("\"\"") : std::string(1, c);
    return cell + '"';
}

}  // namespace

double Row::Points(const Sheet& sheet) const {
    double sum = 0;
    for (std::size_t i = 0; i < sheet.exercises.size(); ++i) {
        sum += PointsFor(sheet.exercises[i], findings.exercises[i]);
    }
    return sum;
}

std::string PointsText(double points) {
    std::ostringstream text;
    text.precision(12);
    text << points;
    return text.str();
}

void PrintTable(const Sheet& sheet, const std::vector<Row>& rows, std::ostream& out) {
    out << OnOneLine(sheet.title) << "\n\n";
    std::vector<std::string> head = {""};
    for (std::size_t i = 0; i < sheet.exercises.size(); ++i) {
        head.push_back(std::to_string(i + 1));
        out << Padded(head.back(), 4, true) << "  " << OnOneLine(sheet.exercises[i].name) << '\n';
    }
    head.emplace_back("points");
    std::vector<std::vector<std::string>> lines = {head};
    for (const Row& row : rows) {
        lines.push_back({Shortened(row.name, LongestName)});
        for (std::string& cell : Cells(sheet, row)) lines.back().push_back(std::move(cell));
    }
    out << '\n';
    PrintAligned(lines, out);
    for (const Row& row : rows) PrintReasons(row, out);
}

void PrintCsv(const Sheet& sheet, const std::vector<Row>& rows, std::ostream& out) {
    out << CsvCell("submission");
    for (const Exercise& exercise : sheet.exercises) out << ',' << CsvCell(exercise.name);
    out << ",\"points\",\"maximum\",\"reasons\"\n";
    for (const Row& row : rows) {
        out << CsvCell(row.name);
        for (std::size_t i = 0; i < sheet.exercises.size(); ++i) {
            out << ',' << PointsText(PointsFor(sheet.exercises[i], row.findings.exercises[i]));
        }
        std::string reasons;
        for (const Missed& missed : MissedBy(row)) {
            for (const std::size_t i : missed.exercises) {
                reasons += (i == missed.exercises[0] ? reasons.empty() ? "" : "; " : ", ") +
                           sheet.exercises[i].name;
            }
            reasons += ": " + missed.reason;
        }
        out << ',' << PointsText(row.Points(sheet)) << ',' << PointsText(sheet.Maximum()) << ','
            << CsvCell(reasons) << '\n';
    }
}

void PrintJson(const Sheet& sheet, const std::vector<Row>& rows, std::ostream& out) {
    using nlohmann::json;
    json object = {
        {"title", sheet.title}, {"maximum", sheet.Maximum()}, {"submissions", json::array()}};
    for (const Row& row : rows) {
        json exercises = json::array();
        for (std::size_t i = 0; i < sheet.exercises.size(); ++i) {
            const Exercise& exercise = sheet.exercises[i];
            const Finding& finding = row.findings.exercises[i];
            exercises.push_back({{"name", exercise.name},
                                 {"points", PointsFor(exercise, finding)},
                                 {"maximum", exercise.points},
                                 {"line", finding.line},
                                 {"reason", finding.reason}});
        }
        object["submissions"].push_back({{"name", row.name},
                                         {"points", row.Points(sheet)},
                                         {"judged", row.findings.judged},
                                         {"exercises", exercises}});
    }
    out << object.dump(-1, ' ', false, json::error_handler_t::replace) << '\n';
}

}  // namespace tessaryn

#include "cli/Grade.h"

#include <algorithm>
#include <filesystem>
#include <ostream>

#include "cli/Apart.h"
#include "cli/GradeReport.h"
#include "cli/Judging.h"
#include "cli/OnOneLine.h"
#include "cli/Sheet.h"
#include "cli/Submissions.h"

namespace tessaryn {

namespace {

constexpr int SomeNotJudged = 1;
constexpr int SheetAtFault = 1;
constexpr int NothingToJudge = 2;

std::string FaultOf(Ending ending, int seconds) {
    switch (ending) {
        case Ending::TimedOut:
            return "judging it took longer than " + std::to_string(seconds) + " seconds";
        case Ending::OutOfMemory:
            return "judging it took too much memory";
        case Ending::NotStarted:
            return "the system had no process to judge it in";
        case Ending::Done:
        case Ending::Broken:
            break;
    }
    return "the program broke off when it judged it";
}

// One for each piece, in processes of their own.
std::vector<Findings> JudgeApart(const Sheet& sheet, const std::vector<std::string>& files,
                                 const GradeRequest& request, std::ostream& err) {
    ApartRequest apart;
    apart.count = files.size();
    apart.jobs = request.jobs;
    apart.time = std::chrono::seconds(request.seconds);
    apart.work = [&](std::size_t i) { return Packed(JudgeFile(sheet, files[i])); };
    apart.tick = [&](std::size_t done, std::size_t longest, long long seconds) {
        err << done << " of " << files.size() << " judged";
        if (seconds > 0) err << ", " << seconds << " s at " << OnOneLine(files[longest]);
        err << '\n' << std::flush;
    };
    std::vector<Findings> all;
    for (const Answered& answer : DoApart(apart)) {
        all.push_back(answer.ending == Ending::Done
                          ? Unpacked(answer.text)
                          : AtFault(sheet, FaultOf(answer.ending, request.seconds), false));
    }
    return all;
}

// What one file of several is worth, beside what those ahead of it are.
void Merge(Findings& all, const Findings& one, const std::string& file) {
    all.judged = all.judged && one.judged;
    for (std::size_t i = 0; i < one.exercises.size(); ++i) {
        if (one.exercises[i].rank <= all.exercises[i].rank) continue;
        all.exercises[i] = one.exercises[i];
        std::string& reason = all.exercises[i].reason;
        if (!reason.empty()) reason.insert(0, file + ": ");
    }
}

// findings: of its files.
Findings JudgeSubmission(const Sheet& sheet, const Submission& submission,
                         std::vector<Findings>::const_iterator findings) {
    if (!submission.fault.empty()) return AtFault(sheet, submission.fault, true);
    const std::size_t count = submission.files.size();
    if (count == 1) return *findings;
    const std::string none =
        "none of its " + std::to_string(count) + " files has the goal as a line";
    Findings all = {true, std::vector<Finding>(sheet.exercises.size(), {{}, 0, none})};
    for (const std::string& file : submission.files) {
        const std::filesystem::path path(file);
        Merge(all, *findings++, path.lexically_relative(submission.directory).string());
    }
    return all;
}

std::vector<Row> JudgeAll(const Sheet& sheet, const std::vector<Submission>& submissions,
                          const GradeRequest& request, std::ostream& err) {
    std::vector<std::string> files;
    for (const Submission& submission : submissions) {
        files.insert(files.end(), submission.files.begin(), submission.files.end());
    }
    const std::vector<Findings> findings = JudgeApart(sheet, files, request, err);
    std::vector<Row> rows;
    auto next = findings.begin();
    for (const Submission& submission : submissions) {
        rows.push_back({submission.name, JudgeSubmission(sheet, submission, next)});
        next += static_cast<std::ptrdiff_t>(submission.files.size());
    }
    return rows;
}

// False if nothing can be graded by the sheet.
bool Report(const Sheet& sheet, std::ostream& err) {
    for (const std::string& fault : sheet.faults) err << OnOneLine(fault) << '\n';
    for (const std::string& warning : sheet.warnings) err << OnOneLine(warning) << '\n';
    return sheet.faults.empty();
}

}  // namespace

int Grade(const GradeRequest& request, std::ostream& out, std::ostream& err) {
    const Sheet sheet = ReadSheet(request.sheet, request.jobs);
    if (!Report(sheet, err)) return NothingToJudge;
    std::vector<std::string> missing;
    const auto submissions = CollectSubmissions(request.submissions, request.sheet, missing);
    for (const std::string& path : missing) err << OnOneLine(path) << ": there is no such file\n";
    if (!missing.empty()) return NothingToJudge;
    if (submissions.empty()) {
        err << "there are no submissions\n";
        return NothingToJudge;
    }
    const std::vector<Row> rows = JudgeAll(sheet, submissions, request, err);
    switch (request.form) {
        case GradeRequest::Form::Table:
            PrintTable(sheet, rows, out);
            break;
        case GradeRequest::Form::Csv:
            PrintCsv(sheet, rows, out);
            break;
        case GradeRequest::Form::Json:
            PrintJson(sheet, rows, out);
            break;
    }
    const bool allJudged =
        std::all_of(rows.begin(), rows.end(), [](const Row& row) { return row.findings.judged; });
    return allJudged ? 0 : SomeNotJudged;
}

namespace {

// What is wrong with an exercise that reads well; "" if nothing is. finding: what its solution is
// worth.
std::string Fault(const Exercise& exercise, const Finding& finding) {
    if (exercise.library) {
        for (const Library::Theorem& theorem : exercise.library->Theorems()) {
            std::string circle;
            exercise.library->BasesOf(theorem.proof, theorem.proof.Count(), circle);
            if (!circle.empty()) return "theorems of the library rest on themselves: " + circle;
            if (theorem.proof.Key(theorem.proof.Count()) == exercise.goalKey) {
                return "the library proves the goal already, in " + theorem.file;
            }
        }
    }
    if (exercise.solution.empty() || finding.rank == Finding::Rank::Solved) return "";
    return "the solution " + exercise.solution + " has no points: " + finding.reason;
}

}  // namespace

int LintSheet(const GradeRequest& request, std::ostream& out, std::ostream& err) {
    const Sheet sheet = ReadSheet(request.sheet, request.jobs);
    if (!Report(sheet, err)) return SheetAtFault;
    std::vector<std::string> solutions;
    for (const Exercise& exercise : sheet.exercises) solutions.push_back(exercise.solution);
    const std::vector<Findings> findings = JudgeApart(sheet, solutions, request, err);
    int status = sheet.warnings.empty() ? 0 : SheetAtFault;
    for (std::size_t i = 0; i < sheet.exercises.size(); ++i) {
        const Exercise& exercise = sheet.exercises[i];
        const std::string fault = Fault(exercise, findings[i].exercises[i]);
        const std::string start = OnOneLine(exercise.name) + ": ";
        if (!fault.empty()) {
            err << request.sheet << ": " << start << OnOneLine(fault) << '\n';
            status = SheetAtFault;
        }
        out << start << exercise.goal << " (" << PointsText(exercise.points)
            << (exercise.solution.empty() ? ", no solution)\n" : ")\n");
    }
    return status;
}

}  // namespace tessaryn

#include "cli/CommandLine.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <optional>
#include <thread>

#include "cli/CheckFiles.h"
#include "cli/ExpressionTables.h"
#include "cli/Fits.h"
#include "cli/FoldPage.h"
#include "cli/FormState.h"
#include "cli/Grade.h"
#include "cli/HeadlessPlatform.h"
#include "cli/ScriptRunner.h"
#include "cli/StateDump.h"
#include "document/ActiveLines.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"
#include "output/HTML.h"
#include "output/LaTeX.h"
#include "output/Printing.h"
#include "output/ProofCommands.h"
#include "platform/Files.h"
#include "view/InsertMode.h"

namespace tessaryn {

namespace {

using Words = std::vector<std::string>;

constexpr int WrongUse = 2;
constexpr int MostJobs = 256;  // at a time, of grade
constexpr int MostSeconds = 86400;

constexpr const char* Usage =
    "usage: tessaryn-cli run [--settings DIR] [--hidden] [--check] [--no-files] FILE|-\n"
    "       tessaryn-cli parse\n"
    "       tessaryn-cli same\n"
    "       tessaryn-cli dump FILE.proof\n"
    "       tessaryn-cli html [--fold] IN.proof OUT.html\n"
    "       tessaryn-cli latex IN.proof OUT.tex\n"
    "       tessaryn-cli print IN.proof OUT.txt\n"
    "       tessaryn-cli fits FILE.proof [LINE]\n"
    "       tessaryn-cli check [--json] [--all] [--library DIR] [--jobs N] FILE.proof...\n"
    "       tessaryn-cli check --rests-on DIR [--jobs N]\n"
    "       tessaryn-cli grade [--csv | --json] [--jobs N] [--seconds N] SHEET SUBMISSION...\n"
    "       tessaryn-cli grade --lint SHEET\n"
    "       tessaryn-cli --version | --help\n";

constexpr const char* Help =
    "\n"
    "run    runs a script of user actions, one a line\n"
    "         --settings DIR  reads and writes the settings in DIR\n"
    "         --hidden        hidden menu items can be chosen\n"
    "         --check         checks the whole document after each action, each line of it too\n"
    "         --no-files      an action that would open, save or print ends the run\n"
    "parse  reads expressions as JSON strings, prints their tables, one a line\n"
    "same   reads pairs of expressions as JSON arrays, prints true or false\n"
    "dump   opens a proof and prints its state as JSON\n"
    "html   writes a proof as a page for a browser\n"
    "         --fold          one that folds blocks, and tells what each line rests on\n"
    "latex  writes a proof as a LaTeX document\n"
    "print  writes a proof as it would be printed, a form feed between pages\n"
    "fits   prints the rules that fit the active lines of a proof, or one of them, and\n"
    "         what they would write, as JSON, one a line\n"
    "check  says whether each line of a proof follows, and what the last one rests on\n"
    "         --json  as JSON, with all statements that are in force at the end\n"
    "         --all   with all statements\n"
    "         --library DIR   axioms that are proved in DIR count as theorems\n"
    "         --rests-on DIR  tells of each theorem in DIR what it rests on\n"
    "         --jobs N        reads DIR on N threads\n"
    "grade  gives points for proofs and scripts (files, or all in a folder) by a sheet of\n"
    "         exercises, and says why points are missing\n"
    "         --csv, --json   for a spreadsheet, for a program\n"
    "         --jobs N        judges N at a time\n"
    "         --seconds N     gives each N seconds instead of 10\n"
    "         --lint          says what is wrong with the sheet\n"
    "\n"
    "Exit status: 0 done; 1 refused, or an expectation failed, or grade could not judge all; 2\n"
    "wrong use, a file that check can't read or judge, or a sheet that grade can't use.\n";

int ReportWrongUse(const Streams& streams) {
    streams.err << Usage;
    return WrongUse;
}

struct RunRequest {
    ScriptOptions options;
    std::string file;  // "" if none is named
};

// Nothing if the words are no right use.
std::optional<RunRequest> ReadRunRequest(const Words& words) {
    RunRequest request;
    for (std::size_t i = 0; i < words.size(); ++i) {
        const std::string& word = words[i];
        if (word == "--hidden") {
            request.options.showHidden = true;
        } else if (word == "--check") {
            request.options.checkDocument = true;
            request.options.checkLines = true;
        } else if (word == "--no-files") {
            request.options.noFiles = true;
        } else if (word == "--settings" && i + 1 < words.size() && !words[i + 1].empty()) {
            request.options.settingsDir = words[++i];
        } else if (request.file.empty() && (word == "-" || !word.starts_with('-'))) {
            request.file = word;
        } else {
            return std::nullopt;
        }
    }
    const bool contradicts = request.options.noFiles && !request.options.settingsDir.empty();
    if (request.file.empty() || contradicts) return std::nullopt;
    return request;
}

constexpr std::size_t MaxScript = 1U << 26;  // what goes on for longer need not have an end

// Nothing if the stream can't be read to its end.
std::optional<std::string> ReadAll(std::istream& source) {
    std::string text;
    char block[65536];
    while (source.read(block, sizeof block) || source.gcount() > 0) {
        text.append(block, static_cast<std::size_t>(source.gcount()));
        if (text.size() > MaxScript) return std::nullopt;
    }
    if (!source.eof()) return std::nullopt;
    return text;
}

std::optional<std::string> ReadScript(const std::string& file, std::istream& in) {
    if (file == "-") return ReadAll(in);
    std::ifstream source(file, std::ios::binary);
    return ReadAll(source);
}

int RunCommand(const Words& words, const Streams& streams) {
    const auto request = ReadRunRequest(words);
    if (!request) return ReportWrongUse(streams);
    const auto script = ReadScript(request->file, streams.in);
    if (!script) {
        streams.err << request->file << ": the script can't be read\n";
        return 1;
    }
    return RunScript(*script, request->file, request->options, streams.out, streams.err);
}

int ParseCommand(const Words& words, const Streams& streams) {
    if (!words.empty()) return ReportWrongUse(streams);
    return PrintParses(streams.in, streams.out, streams.err);
}

int SameCommand(const Words& words, const Streams& streams) {
    if (!words.empty()) return ReportWrongUse(streams);
    return PrintComparisons(streams.in, streams.out, streams.err);
}

// Opens a proof as the window would. False: refused, with the reason on err.
bool OpenProof(const std::string& file, std::ostream& err) {
    StartHeadless();
    ReadProofFile(file);
    if (!OperationCancelled) return true;
    err << file << ": " << BoxText(Proof.StatusLine);
    if (!Headless.Beeps.empty()) err << " (" << Headless.Beeps.back() << ')';
    err << '\n';
    return false;
}

int DumpCommand(const Words& words, const Streams& streams) {
    if (words.size() != 1) return ReportWrongUse(streams);
    if (!OpenProof(words[0], streams.err)) return 1;
    Proof.RTB.SelStart = 0;
    WriteState(0, 0, streams.out);
    return 0;
}

// fault: as ReplaceFile has it. The exit status.
int ReportWriting(const std::string& file, const std::string& fault, const Streams& streams) {
    if (fault.empty()) return 0;
    streams.err << file << ": the file can't be written (" << fault << ")\n";
    return 1;
}

int HtmlCommand(const Words& arguments, const Streams& streams) {
    Words words = arguments;
    const bool folds = std::erase(words, "--fold") > 0;
    if (words.size() != 2) return ReportWrongUse(streams);
    if (!OpenProof(words[0], streams.err)) return 1;
    if (folds) return ReportWriting(words[1], ReplaceFile(words[1], FoldPage()), streams);
    const std::string fault = SaveHTML(words[1]);
    for (const std::string& note : Headless.Notes) streams.err << words[0] << ": " << note << '\n';
    return ReportWriting(words[1], fault, streams);
}

int LatexCommand(const Words& words, const Streams& streams) {
    if (words.size() != 2) return ReportWrongUse(streams);
    if (!OpenProof(words[0], streams.err)) return 1;
    return ReportWriting(words[1], SaveLaTeX(words[1]), streams);
}

int PrintCommand(const Words& words, const Streams& streams) {
    if (words.size() != 2) return ReportWrongUse(streams);
    if (!OpenProof(words[0], streams.err)) return 1;
    if (ProofText.empty()) {
        streams.err << words[0] << ": Print:  Nothing to print\n";
        return 1;
    }
    PrintStatements(1, StmtCount, [](PrintResult) {});
    std::string pages;
    for (const std::string& page : Headless.Pages) pages += (pages.empty() ? "" : "\f") + page;
    return ReportWriting(words[1], ReplaceFile(words[1], pages + "\n"), streams);
}

// The number that the word is, 0 if it is none above 0.
int PositiveNumber(const std::string& word) {
    int number = 0;
    const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), number);
    return error == std::errc() && *end == '\0' ? std::max(number, 0) : 0;
}

int FitsCommand(const Words& words, const Streams& streams) {
    if (words.empty() || words.size() > 2) return ReportWrongUse(streams);
    const int line = words.size() == 2 ? PositiveNumber(words[1]) : 0;
    if (words.size() == 2 && line == 0) return ReportWrongUse(streams);
    if (!OpenProof(words[0], streams.err)) return 1;
    if (line > 0 && !IsActive(line, InsertionLimit())) {
        streams.err << words[0] << ": line " << line << " is no active line\n";
        return 1;
    }
    PrintFits(line, streams.out);
    return 0;
}

int CountCores() {
    return static_cast<int>(std::max(1U, std::thread::hardware_concurrency()));
}

// Nothing if the words are no right use.
std::optional<CheckRequest> ReadCheckRequest(const Words& words) {
    CheckRequest request;
    request.jobs = CountCores();
    for (std::size_t i = 0; i < words.size(); ++i) {
        const std::string& word = words[i];
        const bool hasValue = i + 1 < words.size() && !words[i + 1].empty();
        if (word == "--json") {
            request.asJson = true;
        } else if (word == "--all") {
            request.allLines = true;
        } else if ((word == "--library" || word == "--rests-on") && hasValue) {
            request.theorems = word == "--rests-on";
            request.library = words[++i];
        } else if (word == "--jobs" && hasValue) {
            request.jobs = PositiveNumber(words[++i]);
        } else if (word.empty() || word.starts_with('-')) {
            return std::nullopt;
        } else {
            request.files.push_back(word);
        }
    }
    if (request.jobs < 1 || request.files.empty() != request.theorems) return std::nullopt;
    return request;
}

int CheckCommand(const Words& words, const Streams& streams) {
    const auto request = ReadCheckRequest(words);
    if (!request) return ReportWrongUse(streams);
    std::error_code error;
    if (!request->library.empty() && !std::filesystem::is_directory(request->library, error)) {
        streams.err << request->library << ": there is no such directory\n";
        return WrongUse;
    }
    return request->theorems ? ListTheorems(*request, streams.out, streams.err)
                             : CheckFiles(*request, streams.out, streams.err);
}

// Nothing if the words are no right use.
std::optional<GradeRequest> ReadGradeRequest(const Words& words) {
    GradeRequest request;
    request.jobs = CountCores();
    for (std::size_t i = 0; i < words.size(); ++i) {
        const std::string& word = words[i];
        if (word == "--csv") {
            request.form = GradeRequest::Form::Csv;
        } else if (word == "--json") {
            request.form = GradeRequest::Form::Json;
        } else if (word == "--lint") {
            request.lint = true;
        } else if ((word == "--jobs" || word == "--seconds") && i + 1 < words.size()) {
            (word == "--jobs" ? request.jobs : request.seconds) = PositiveNumber(words[++i]);
        } else if (word.empty() || word.starts_with("--")) {
            return std::nullopt;
        } else if (request.sheet.empty()) {
            request.sheet = word;
        } else {
            request.submissions.push_back(word);
        }
    }
    const bool limited = request.jobs >= 1 && request.jobs <= MostJobs && request.seconds >= 1 &&
                         request.seconds <= MostSeconds;
    if (!limited || request.sheet.empty() || request.lint != request.submissions.empty()) {
        return std::nullopt;
    }
    return request;
}

int GradeCommand(const Words& words, const Streams& streams) {
    const auto request = ReadGradeRequest(words);
    if (!request) return ReportWrongUse(streams);
    return request->lint ? LintSheet(*request, streams.out, streams.err)
                         : Grade(*request, streams.out, streams.err);
}

int VersionCommand(const Words& words, const Streams& streams) {
    if (!words.empty()) return ReportWrongUse(streams);
    streams.out << "tessaryn-cli " TESSARYN_VERSION "\n";
    return 0;
}

int HelpCommand(const Words& words, const Streams& streams) {
    if (!words.empty()) return ReportWrongUse(streams);
    streams.out << Usage << Help;
    return 0;
}

struct CommandRow {
    const char* name;
    int (*run)(const Words& words, const Streams& streams);
};

constexpr std::array Commands = std::to_array<CommandRow>({
    {"run", RunCommand},
    {"parse", ParseCommand},
    {"same", SameCommand},
    {"dump", DumpCommand},
    {"html", HtmlCommand},
    {"latex", LatexCommand},
    {"print", PrintCommand},
    {"fits", FitsCommand},
    {"check", CheckCommand},
    {"grade", GradeCommand},
    {"--version", VersionCommand},
    {"--help", HelpCommand},
});

}  // namespace

int RunCommandLine(const Words& arguments, const Streams& streams) {
    if (arguments.empty()) return ReportWrongUse(streams);
    for (const CommandRow& command : Commands) {
        if (command.name != arguments[0]) continue;
        return command.run(Words(arguments.begin() + 1, arguments.end()), streams);
    }
    return ReportWrongUse(streams);
}

}  // namespace tessaryn

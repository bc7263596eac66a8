#include "cli/CommandLine.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <climits>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <optional>
#include <sstream>
#include <thread>

#include "cli/CheckFiles.h"
#include "cli/CommandText.h"
#include "cli/ExpressionTables.h"
#include "cli/Fits.h"
#include "cli/FoldPage.h"
#include "cli/FormState.h"
#include "cli/Grade.h"
#include "cli/HeadlessPlatform.h"
#include "cli/Ink.h"
#include "cli/Nearest.h"
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

constexpr int StatusOfWrongUse = 2;
constexpr int MostJobs = 256;  // at a time, of grade
constexpr int MostSeconds = 86400;

// A command that has been told what to do.
struct CommandCall {
    const CommandWords& words;
    const Streams& streams;
};

// Throws if there are not so many files.
void RequireFiles(const CommandWords& words, std::size_t least, std::size_t most) {
    if (words.files.size() < least) {
        throw WrongUse{words.files.empty() ? "no file is named" : "a file is missing"};
    }
    if (words.files.size() > most) {
        throw WrongUse{"nothing may follow here: " + words.files[most]};
    }
    const bool unnamed = std::count(words.files.begin(), words.files.end(), "") > 0;
    if (unnamed) throw WrongUse{"a name is empty"};
}

ScriptOptions RunOptions(const CommandWords& words) {
    ScriptOptions options;
    options.showHidden = words.Has("--hidden");
    if (words.Has("--check")) options.checkDocument = options.checkLines = true;
    options.noFiles = words.Has("--no-files");
    options.settingsDir = words.ValueOf("--settings");
    if (options.noFiles && !options.settingsDir.empty()) {
        throw WrongUse{"--no-files leaves no settings to be read"};
    }
    return options;
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

int RunCommand(const CommandCall& call) {
    RequireFiles(call.words, 1, 1);
    const std::string& file = call.words.files[0];
    ScriptOptions options = RunOptions(call.words);
    const auto& [words, streams] = call;
    options.answersAtOnce = file == "-";
    if (file == "-") return RunScript(streams.in, file, options, streams.out, streams.err);
    std::ifstream source(file, std::ios::binary);
    const auto whole = ReadAll(source);
    if (!whole) {
        streams.err << Ink::Bad << file << Ink::Plain << ": the script can't be read\n";
        return 1;
    }
    std::istringstream script(*whole);
    return RunScript(script, file, options, streams.out, streams.err);
}

int ParseCommand(const CommandCall& call) {
    RequireFiles(call.words, 0, 0);
    return PrintParses(call.streams.in, call.streams.out, call.streams.err);
}

int SameCommand(const CommandCall& call) {
    RequireFiles(call.words, 0, 0);
    return PrintComparisons(call.streams.in, call.streams.out, call.streams.err);
}

// Opens a proof as the window would. False: refused, with the reason on err.
bool OpenProof(const std::string& file, std::ostream& err) {
    StartHeadless();
    ReadProofFile(file);
    if (!OperationCancelled) return true;
    err << Ink::Bad << file << Ink::Plain << ": " << BoxText(Proof.StatusLine);
    if (!Headless.Beeps.empty()) err << " (" << Headless.Beeps.back() << ')';
    err << '\n';
    return false;
}

int DumpCommand(const CommandCall& call) {
    RequireFiles(call.words, 1, 1);
    if (!OpenProof(call.words.files[0], call.streams.err)) return 1;
    Proof.RTB.SelStart = 0;
    WriteState(0, 0, call.streams.out);
    return 0;
}

// fault: as ReplaceFile has it. The exit status.
int ReportWriting(const std::string& file, const std::string& fault, const Streams& streams) {
    if (fault.empty()) return 0;
    streams.err << Ink::Bad << file << Ink::Plain << ": the file can't be written (" << fault
                << ")\n";
    return 1;
}

// Opens the first of two files and writes the second.
int Convert(const CommandCall& call, std::string (*write)(const std::string& path)) {
    RequireFiles(call.words, 2, 2);
    const std::string& from = call.words.files[0];
    const std::string& to = call.words.files[1];
    if (!OpenProof(from, call.streams.err)) return 1;
    const std::string fault = write(to);
    for (const std::string& note : Headless.Notes) call.streams.err << from << ": " << note << '\n';
    return ReportWriting(to, fault, call.streams);
}

int HtmlCommand(const CommandCall& call) {
    return Convert(call, call.words.Has("--fold") ? SaveFoldPage : SaveHTML);
}

int LatexCommand(const CommandCall& call) {
    return Convert(call, SaveLaTeX);
}

int PrintCommand(const CommandCall& call) {
    RequireFiles(call.words, 2, 2);
    const auto& [words, streams] = call;
    if (!OpenProof(words.files[0], streams.err)) return 1;
    if (ProofText.empty()) {
        streams.err << words.files[0] << ": Print:  Nothing to print\n";
        return 1;
    }
    PrintStatements(1, StmtCount, [](PrintResult) {});
    std::string pages;
    for (const std::string& page : Headless.Pages) pages += (pages.empty() ? "" : "\f") + page;
    return ReportWriting(words.files[1], ReplaceFile(words.files[1], pages + "\n"), streams);
}

// The number that the word is, 0 if it is none above 0.
int PositiveNumber(const std::string& word) {
    int number = 0;
    const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), number);
    return error == std::errc() && *end == '\0' ? std::max(number, 0) : 0;
}

int FitsCommand(const CommandCall& call) {
    RequireFiles(call.words, 1, 2);
    const std::vector<std::string>& files = call.words.files;
    const int line = files.size() == 2 ? PositiveNumber(files[1]) : 0;
    if (files.size() == 2 && line == 0) throw WrongUse{"there is no line " + files[1]};
    if (!OpenProof(files[0], call.streams.err)) return 1;
    if (line > 0 && !IsActive(line, InsertionLimit())) {
        call.streams.err << files[0] << ": line " << line << " is no active line\n";
        return 1;
    }
    PrintFits(line, call.streams.out);
    return 0;
}

int CountCores() {
    return static_cast<int>(std::max(1U, std::thread::hardware_concurrency()));
}

// The value of an option that takes a number up to some limit, or what holds without it.
int NumberOf(const CommandWords& words, const char* option, int most, int otherwise) {
    if (!words.Has(option)) return otherwise;
    const int number = PositiveNumber(words.ValueOf(option));
    if (number >= 1 && number <= most) return number;
    throw WrongUse{std::string(option) + " takes a number from 1 to " + std::to_string(most) +
                   ", not " + words.ValueOf(option)};
}

CheckRequest ReadCheckRequest(const CommandWords& words) {
    CheckRequest request;
    request.asJson = words.Has("--json");
    request.allLines = words.Has("--all");
    request.theorems = words.Has("--rests-on");
    request.library = words.ValueOf(request.theorems ? "--rests-on" : "--library");
    request.jobs = NumberOf(words, "--jobs", INT_MAX, CountCores());
    RequireFiles(words, request.theorems ? 0 : 1, request.theorems ? 0 : words.files.size());
    request.files = words.files;
    return request;
}

int CheckCommand(const CommandCall& call) {
    const auto& [words, streams] = call;
    const CheckRequest request = ReadCheckRequest(words);
    std::error_code error;
    if (!request.library.empty() && !std::filesystem::is_directory(request.library, error)) {
        streams.err << request.library << ": there is no such directory\n";
        return StatusOfWrongUse;
    }
    return request.theorems ? ListTheorems(request, streams.out, streams.err)
                            : CheckFiles(request, streams.out, streams.err);
}

GradeRequest ReadGradeRequest(const CommandWords& words) {
    GradeRequest request;
    for (const CommandWords::Option& option : words.options) {
        if (option.name == "--csv") request.form = GradeRequest::Form::Csv;
        if (option.name == "--json") request.form = GradeRequest::Form::Json;
    }
    request.lint = words.Has("--lint");
    request.jobs = NumberOf(words, "--jobs", MostJobs, CountCores());
    request.seconds = NumberOf(words, "--seconds", MostSeconds, request.seconds);
    RequireFiles(words, request.lint ? 1 : 2, request.lint ? 1 : words.files.size());
    request.sheet = words.files[0];
    request.submissions.assign(words.files.begin() + 1, words.files.end());
    return request;
}

int GradeCommand(const CommandCall& call) {
    const GradeRequest request = ReadGradeRequest(call.words);
    return request.lint ? LintSheet(request, call.streams.out, call.streams.err)
                        : Grade(request, call.streams.out, call.streams.err);
}

using Command = int (*)(const CommandCall& call);

// In the order of their texts.
constexpr std::array<Command, 10> Commands = {RunCommand,   ParseCommand, SameCommand,  DumpCommand,
                                              HtmlCommand,  LatexCommand, PrintCommand, FitsCommand,
                                              CheckCommand, GradeCommand};

int ReportWrongUse(const std::string& reason, const std::string& usage, const Streams& streams) {
    streams.err << Ink::Bad << "tessaryn-cli: " << Ink::Plain << reason << '\n' << usage;
    return StatusOfWrongUse;
}

int RunCommandOf(const CommandText& text, Command command, const Words& arguments,
                 const Streams& streams) {
    try {
        const CommandWords words = SortWords(text, arguments);
        if (!words.wantsHelp) return command({words, streams});
        streams.out << HelpOf(text);
        return 0;
    } catch (const WrongUse& wrong) {
        return ReportWrongUse(wrong.reason, UsageOf(text), streams);
    }
}

int ReportUnknown(const std::string& name, const Streams& streams) {
    std::vector<std::string_view> names = {"help", "--help", "--version"};
    for (const CommandText& text : CommandTexts()) names.emplace_back(text.name);
    return ReportWrongUse("there is no command " + name + DidYouMean(name, names), UsageOfAll(),
                          streams);
}

}  // namespace

int RunCommandLine(const Words& arguments, const Streams& streams) {
    if (arguments.empty()) return ReportWrongUse("no command is given", UsageOfAll(), streams);
    Words words = arguments;
    if (words[0] == "help" && words.size() > 1) {
        words.erase(words.begin());
        words.insert(words.begin() + 1, "--help");
    }
    const bool isAlone = words[0] == "help" || words[0] == "--help" || words[0] == "--version";
    if (isAlone && words.size() > 1) {
        return ReportWrongUse("nothing may follow here: " + words[1], UsageOfAll(), streams);
    }
    if (isAlone) {
        streams.out << (words[0] == "--version" ? "tessaryn-cli " TESSARYN_VERSION "\n"
                                                : HelpOfAll());
        return 0;
    }
    for (std::size_t i = 0; i < Commands.size(); ++i) {
        const CommandText& text = CommandTexts()[i];
        if (text.name != words[0]) continue;
        return RunCommandOf(text, Commands[i], Words(words.begin() + 1, words.end()), streams);
    }
    return ReportUnknown(words[0], streams);
}

}  // namespace tessaryn

#include "cli/Judging.h"

#include <algorithm>
#include <map>
#include <nlohmann/json.hpp>
#include <ostream>

#include "cli/Apart.h"
#include "cli/CheckFiles.h"
#include "cli/OnOneLine.h"
#include "cli/ScriptRunner.h"
#include "cli/Submissions.h"
#include "document/Bytes.h"
#include "document/ProofFile.h"
#include "platform/InputFile.h"

namespace tessaryn {

namespace {

using nlohmann::json;
using Rank = Finding::Rank;
using Kind = Basis::Kind;

constexpr std::size_t MostObjections = 3;  // told of one line
constexpr int LongestQuote = 60;           // characters of a statement

// The lines of a proof by what they say.
using LinesByKey = std::multimap<std::string, int>;

// Holds a proof against an exercise.
class Examiner {
  public:
    Examiner(const Exercise& exercise, const check::CheckedProof& proof)
        : exercise_(exercise), proof_(proof) {}

    Finding Examine(const LinesByKey& lines) const {
        Finding finding;
        int closed = 0;
        const auto [begin, end] = lines.equal_range(exercise_.goalKey);
        for (auto at = begin; at != end; ++at) {
            if (!proof_.InForce(at->second)) {
                closed = at->second;
                continue;
            }
            finding = {Rank::GoalUnsupported, at->second, Objection(at->second)};
            if (!finding.reason.empty()) continue;
            finding.rank = Rank::Solved;
            return finding;
        }
        if (finding.line == 0 && closed == 0) {
            finding.reason = NoGoal();
        } else if (finding.line == 0) {
            finding = {Rank::GoalUnsupported, closed,
                       Goal(closed) + "it lies in a block that is closed"};
        }
        return finding;
    }

  private:
    static std::string Line(int line) { return "line " + std::to_string(line); }
    static std::string Goal(int line) { return Line(line) + " is the goal, but "; }

    std::string NoGoal() const {
        if (proof_.Count() == 0) return "the proof has no lines";
        return "no line is the goal (the last one, " + Line(proof_.Count()) + ", says " +
               Shortened(proof_.Text(proof_.Count()), LongestQuote) + ")";
    }

    std::vector<Basis> BasesOf(int line, std::string& circle) const {
        static const Library none;
        const Library& library = exercise_.library ? *exercise_.library : none;
        return library.BasesOf(proof_, line, circle);
    }

    // Why a line that is the goal does not count; "" if it does.
    std::string Objection(int line) const {
        for (const check::Ground& ground : proof_.RestsOn(line)) {
            if (IsGoalItself(ground)) return Assumed(line, ground);
        }
        std::string circle;
        std::vector<std::string> objections;
        bool isNews = false;  // that such a thing is not allowed
        for (const Basis& basis : BasesOf(line, circle)) {
            if (IsAllowed(basis)) continue;
            objections.push_back(Told(basis));
            isNews = basis.kind == Kind::Axiom || basis.kind == Kind::Menu;
        }
        if (!circle.empty()) return Goal(line) + "theorems rest on themselves: " + circle;
        if (objections.empty()) return "";
        return Goal(line) + "it rests on " + Enumerated(objections) +
               (isNews ? ", which is not allowed here" : "");
    }

    static std::string Enumerated(const std::vector<std::string>& things) {
        std::string all;
        const std::size_t told = std::min(things.size(), MostObjections);
        for (std::size_t i = 0; i < told; ++i) {
            all += (i == 0 ? "" : i + 1 == things.size() ? " and " : ", ") + things[i];
        }
        return told == things.size() ? all : all + " and more";
    }

    // The goal may be a theorem of the library. That does not make it an axiom of the proof.
    bool IsGoalItself(const check::Ground& ground) const {
        const bool isOwn = ground.kind == check::Ground::Kind::Premise ||
                           ground.kind == check::Ground::Kind::Created;
        return isOwn && proof_.Key(ground.line) == exercise_.goalKey;
    }

    static std::string Assumed(int line, const check::Ground& ground) {
        const bool isPremise = ground.kind == check::Ground::Kind::Premise;
        if (ground.line == line) {
            return Goal(line) + "only as " + (isPremise ? "a premise" : "an axiom");
        }
        return Goal(line) + "it rests on the " + (isPremise ? "premise" : "axiom") + " in " +
               Line(ground.line) + ", which says the same";
    }

    bool IsAllowed(const Basis& basis) const {
        if (basis.kind == Kind::Theorem) return true;
        if (basis.kind == Kind::Witness) return false;
        if (basis.kind == Kind::Menu) return IsNamed(basis) && Stands(basis.about);
        return exercise_.assumable.contains(basis.line != 0 ? proof_.Key(basis.line)
                                                            : check::StatementKey(basis.text));
    }

    // No sheet can name an axiom "for every n".
    bool IsNamed(const Basis& basis) const {
        return exercise_.menuAxioms.contains(
            basis.text.substr(0, basis.text.find(" for n of line ")));
    }

    // Whether the axiom may be used that Induction takes its n from; 0 none of the proof's own.
    bool Stands(int axiom) const {
        if (axiom == 0) return true;
        std::string circle;
        const std::vector<Basis> bases = BasesOf(axiom, circle);
        return std::all_of(bases.begin(), bases.end(),
                           [this](const Basis& basis) { return IsAllowed(basis); });
    }

    std::string Told(const Basis& basis) const {
        if (basis.kind == Kind::Premise) return "the premise in " + Line(basis.line);
        if (basis.kind == Kind::Witness) return basis.worded;
        if (basis.line == 0) return Shortened(basis.worded, LongestQuote) + " by way of a theorem";
        if (basis.kind == Kind::Axiom) return "the axiom in " + Line(basis.line);
        if (!IsNamed(basis)) return basis.text;
        return "Induction for the n of the axiom in " + Line(basis.about);
    }

    const Exercise& exercise_;
    const check::CheckedProof& proof_;
};

bool IsProofFile(const std::string& path, const std::string& bytes) {
    return EndingOf(path) == ".proof" || bytes.starts_with(FileMagic);
}

// A stream that drops what is written to it.
class Nowhere : public std::ostream {
  public:
    Nowhere() : std::ostream(nullptr) {}
};

Findings JudgeScript(const Sheet& sheet, const std::string& script) {
    ScriptOptions options;
    options.checkDocument = false;
    options.noFiles = true;
    Nowhere out;
    const ScriptFailure failure = PlayScript(script, options, out);
    Findings findings = JudgeProof(sheet, check::CheckProof(WriteProof()));
    if (failure.reason.empty()) return findings;
    const std::string stop = "; the script stops in line " + std::to_string(failure.line) + ": " +
                             Shortened(failure.reason, 3 * LongestQuote);
    for (Finding& finding : findings.exercises) {
        if (finding.rank == Rank::NoGoal) finding.rank = Rank::FileAtFault;
        if (finding.rank != Rank::Solved) finding.reason += stop;
    }
    return findings;
}

}  // namespace

Findings AtFault(const Sheet& sheet, const std::string& reason, bool judged) {
    return {judged, std::vector<Finding>(sheet.exercises.size(), {Rank::FileAtFault, 0, reason})};
}

Findings JudgeProof(const Sheet& sheet, const check::CheckedProof& proof) {
    if (proof.verdict == check::Verdict::Declined) return AtFault(sheet, proof.sentence, false);
    if (proof.verdict == check::Verdict::Refused) {
        return AtFault(sheet,
                       (proof.faultyLine == 0 ? "the file is damaged: " : "the proof is wrong: ") +
                           Shortened(proof.sentence, 4 * LongestQuote),
                       true);
    }
    LinesByKey lines;
    for (int line = 1; line <= proof.Count(); ++line) lines.emplace(proof.Key(line), line);
    Findings findings;
    for (const Exercise& exercise : sheet.exercises) {
        findings.exercises.push_back(Examiner(exercise, proof).Examine(lines));
    }
    return findings;
}

Findings JudgeFile(const Sheet& sheet, const std::string& path) {
    if (InputFile(path).Size() > MaxProofFile) return AtFault(sheet, "the file is too large", true);
    auto bytes = ReadBeginning(path, MaxProofFile);
    if (!bytes) return AtFault(sheet, "the file can't be read", false);
    if (bytes->empty()) return AtFault(sheet, "the file is empty", true);
    OpenNoMoreFiles();
    if (IsProofFile(path, *bytes)) return JudgeProof(sheet, check::CheckProof(std::move(*bytes)));
    return JudgeScript(sheet, *bytes);
}

std::string Packed(const Findings& findings) {
    json packed = {findings.judged};
    for (const Finding& finding : findings.exercises) {
        packed.push_back({static_cast<int>(finding.rank), finding.line, finding.reason});
    }
    return packed.dump(-1, ' ', false, json::error_handler_t::replace);
}

Findings Unpacked(const std::string& packed) {
    const json all = json::parse(packed);
    Findings findings = {all[0].get<bool>(), {}};
    for (std::size_t i = 1; i < all.size(); ++i) {
        const json& one = all[i];
        findings.exercises.push_back(
            {Rank{one[0].get<int>()}, one[1].get<int>(), one[2].get<std::string>()});
    }
    return findings;
}

}  // namespace tessaryn

#include "check/Check.h"

#include <algorithm>
#include <set>

#include "check/Grounds.h"
#include "check/Judge.h"
#include "check/Layout.h"
#include "check/ProofBytes.h"
#include "check/RuleNames.h"
#include "check/SchemeTexts.h"
#include "check/Schemes.h"
#include "check/Statement.h"

namespace tessaryn::check {

struct CheckedProof::Content {
    std::string file;
    ProofBytes proof;
    std::vector<char> inForce;
    std::vector<Ground> grounds;                 // of all lines that are one
    std::vector<std::pair<int, int>> witnesses;  // lines that speak of the witness of a line

    const Record& At(int line) const { return proof.records[static_cast<std::size_t>(line)]; }
};

CheckedProof CheckProof(std::string file) {
    const auto content = std::make_shared<CheckedProof::Content>();
    content->file = std::move(file);
    content->proof = ReadProofBytes(content->file);
    CheckedProof checked;
    checked.content_ = content;
    checked.sentence = content->proof.error;
    if (!checked.sentence.empty()) {
        checked.verdict = Verdict::Refused;
        content->proof.records.resize(1);
        return checked;
    }
    Judge judge(content->proof);
    checked.sentence = judge.Sentence();
    checked.verdict = judge.Result();
    checked.faultyLine = checked.verdict == Verdict::Accepted ? 0 : judge.Line();
    content->inForce = judge.LinesInForce();
    content->grounds = judge.TakeGrounds();
    content->witnesses = judge.TakeWitnesses();
    return checked;
}

int CheckedProof::Count() const {
    return static_cast<int>(content_->proof.records.size()) - 1;
}

bool CheckedProof::InForce(int line) const {
    return static_cast<std::size_t>(line) < content_->inForce.size() &&
           content_->inForce[static_cast<std::size_t>(line)] != 0;
}

std::string CheckedProof::Text(int line) const {
    std::string text;
    for (const char c : StatementText(content_->proof, line)) {
        if (c == '\r') text += ' ';
        if (c != '\r' && c != '\n' && c != '\t') text += c;
    }
    return text;
}

std::string CheckedProof::Key(int line) const {
    return StatementKey(Text(line));
}

std::string CheckedProof::Annotation(int line) const {
    const Record& record = content_->At(line);
    return std::string(content_->proof.text.substr(
        static_cast<std::size_t>(record.startRule - 1),
        static_cast<std::size_t>(record.endRule - record.startRule + 1)));
}

std::vector<Ground> CheckedProof::RestsOn(int line) const {
    std::vector<Ground> grounds;
    std::set<std::pair<Ground::Kind, std::string>> told;
    const auto add = [&](Ground ground) {
        if (told.emplace(ground.kind, ground.text).second) grounds.push_back(std::move(ground));
    };
    for (const int from : Ancestry(content_->proof.records, line)) {
        const int end = DischargedIn(from);
        if (end != 0 && end <= line) continue;
        if (auto ground = OwnGround(from)) add(std::move(*ground));
    }
    for (Ground& witness : WitnessesOf(line)) add(std::move(witness));
    return grounds;
}

std::vector<int> CheckedProof::Sources(int line) const {
    std::vector<int> sources;
    for (const int source : check::Sources(content_->proof.records, line)) {
        if (source > 0) sources.push_back(source);
    }
    return sources;
}

std::optional<Ground> CheckedProof::OwnGround(int line) const {
    const auto& grounds = content_->grounds;
    const auto own =
        std::lower_bound(grounds.begin(), grounds.end(), line,
                         [](const Ground& ground, int at) { return ground.line < at; });
    if (own == grounds.end() || own->line != line) return std::nullopt;
    Ground ground = *own;
    if (ground.kind != Ground::Kind::Menu) ground.text = Text(line);
    return ground;
}

int CheckedProof::DischargedIn(int line) const {
    const Record& record = content_->At(line);
    return record.rule == static_cast<int>(Rule::Premise) ? record.arg1 : 0;
}

std::vector<Ground> CheckedProof::WitnessesOf(int line) const {
    std::vector<Ground> witnesses;
    const auto& all = content_->witnesses;
    for (auto at = std::lower_bound(all.begin(), all.end(), std::pair(line, 0));
         at != all.end() && at->first == line; ++at) {
        const std::string_view name = content_->At(at->second).specName;
        witnesses.push_back({Ground::Kind::Witness, at->second, std::string(name)});
    }
    return witnesses;
}

std::string StatementKey(std::string_view text) {
    Terms terms;
    StatementReader reader(terms);
    return reader.ReadLoosely(text).error.empty() ? reader.Printed(true) : "";
}

std::vector<std::string> MenuAxioms() {
    std::vector<std::string> names = {"Subset", "Induction"};
    for (const Rule rule : SetAxiomRules) names.emplace_back(RuleName(rule));
    for (const AxiomGroup& group : AxiomGroups()) {
        for (std::size_t i = 1; i <= group.texts.size(); ++i) {
            names.push_back(std::string(group.name) + " " + std::to_string(i));
        }
    }
    for (const DefinitionText& definition : DefinitionTexts()) {
        names.push_back("definition of " + std::string(definition.sign));
    }
    return names;
}

std::string MenuAxiomThatReads(std::string_view text) {
    Terms terms;
    Schemes schemes(terms);
    return schemes.GroupAxiom(StatementReader(terms).ReadLoosely(text).term);
}

std::string Worded(const Ground& ground) {
    const std::string place = " in line " + std::to_string(ground.line);
    switch (ground.kind) {
        case Ground::Kind::Premise:
            return "premise " + ground.text + place;
        case Ground::Kind::Created:
            return "axiom " + ground.text + place;
        case Ground::Kind::Menu:
            return ground.text;
        case Ground::Kind::Witness:
            return "the choice of " + ground.text + place;
    }
    return "";
}

std::string WordedGrounds(const CheckedProof& proof, int line) {
    std::string worded;
    for (const Ground& ground : proof.RestsOn(line)) {
        worded += (worded.empty() ? "rests on " : ", ") + Worded(ground);
    }
    return worded.empty() ? "proved" : worded;
}

std::string Summary(const CheckedProof& proof) {
    if (proof.verdict == Verdict::Refused) return "wrong: " + proof.sentence;
    if (proof.verdict == Verdict::Declined) return "declined: " + proof.sentence;
    return proof.Count() == 0 ? "no statement" : WordedGrounds(proof, proof.Count());
}

}  // namespace tessaryn::check

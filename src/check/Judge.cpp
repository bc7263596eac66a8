#include "check/Judge.h"

#include "check/Layout.h"
#include "check/RuleNames.h"
#include "check/Step.h"

namespace tessaryn::check {
namespace {

constexpr std::size_t LongestStatement = 0xFFFF;

struct RuleRow {
    Rule rule;
    int fewest, most;  // references
    RuleTest test;
};

constexpr RuleRow RuleRows[] = {
    {Rule::Premise, 0, 0, Premise},
    {Rule::Conclusion, 1, 1, Conclusion},
    {Rule::Axiom, 0, 0, Axiom},
    {Rule::ESpec, 1, 1, ESpec},
    {Rule::USpec, 1, 2, USpec},
    {Rule::EGen, 1, 1, EGen},
    {Rule::Quant, 1, 1, Quant},
    {Rule::RemDNeg, 1, 1, RemDNeg},
    {Rule::Join, 2, 2, Join},
    {Rule::Split, 1, 1, Split},
    {Rule::Detach, 2, 2, Detach},
    {Rule::IffAnd, 1, 1, IffAnd},
    {Rule::ImplyAnd, 1, 1, ImplyAnd},
    {Rule::ImplyOr, 1, 1, ImplyOr},
    {Rule::Contra, 1, 1, Contra},
    {Rule::DeMorgan, 1, 1, DeMorgan},
    {Rule::ArbOr, 1, 1, ArbOr},
    {Rule::ArbAnte, 1, 1, ArbAnte},
    {Rule::ArbCons, 1, 1, ArbCons},
    {Rule::OrNot, 0, 0, OrNot},
    {Rule::Cases, 2, 2, Cases},
    {Rule::Copy, 1, 1, Copy},
    {Rule::Substitute, 2, 2, Substitute},
    {Rule::Sym, 1, 1, Sym},
    {Rule::Reflex, 0, 1, Reflex},
    {Rule::Rename, 1, 1, Rename},
    {Rule::Reorder, 1, 1, Reorder},
    {Rule::Subset, 1, 1, Subset},
    {Rule::Induction, 0, 0, Induction},
    {Rule::Definition, 0, 0, Definition},
    {Rule::CartProd, 0, 0, SetAxiom},
    {Rule::PowerSet, 0, 0, SetAxiom},
    {Rule::Function, 0, 0, SetAxiom},
    {Rule::SetEquality, 0, 0, SetAxiom},
    {Rule::PwUnion, 0, 0, SetAxiom},
    {Rule::ArbUnion, 0, 0, SetAxiom},
    {Rule::Choice, 0, 0, SetAxiom},
    {Rule::FnSpace, 0, 0, SetAxiom},
    {Rule::FnEquality, 0, 0, SetAxiom},
};

const RuleRow* RowOf(int rule) {
    for (const RuleRow& row : RuleRows) {
        if (row.rule == Rule{rule}) return &row;
    }
    return nullptr;
}

std::string Named(int line) {
    return "line " + std::to_string(line);
}

}  // namespace

Judge::Judge(const ProofBytes& proof)
    : proof_(proof),
      schemes_(terms_),
      reader_(terms_),
      lineTerms_(1, 0),
      patience_(1'000'000 + 20 * static_cast<long long>(proof.text.size())) {}

std::string Judge::Sentence() {
    std::string fault = BlockFault();
    const int count = static_cast<int>(proof_.records.size()) - 1;
    while (fault.empty() && line_ < count) {
        ++line_;
        fault = LineFault();
        if (fault.empty()) NoteGround();
    }
    if (!fault.empty() && verdict_ == Verdict::Accepted) verdict_ = Verdict::Refused;
    return fault;
}

// Premises and Conclusions name each other, and blocks lie within one another.
std::string Judge::BlockFault() {
    const std::vector<Record>& records = proof_.records;
    const auto isA = [&](int line, Rule rule) {
        return line > 0 && static_cast<std::size_t>(line) < records.size() &&
               records[static_cast<std::size_t>(line)].rule == static_cast<int>(rule);
    };
    std::vector<int> ends;  // of the blocks around the line, the innermost last
    depths_.assign(1, 0);
    for (line_ = 1; static_cast<std::size_t>(line_) < records.size(); ++line_) {
        const int other = Own().arg1;
        if (isA(line_, Rule::Premise) && other != 0) {
            if (!isA(other, Rule::Conclusion) ||
                records[static_cast<std::size_t>(other)].arg1 != line_) {
                return Named(line_) + " is a premise that is said to be closed by " + Named(other) +
                       ", which does not close it";
            }
            if (!ends.empty() && other >= ends.back()) {
                return Named(ends.back()) + " closes a block in which another is not yet closed";
            }
            ends.push_back(other);
        }
        if (isA(line_, Rule::Conclusion)) {
            if (other >= line_ || !isA(other, Rule::Premise) ||
                records[static_cast<std::size_t>(other)].arg1 != line_) {
                return Named(line_) + " closes " + Named(other) +
                       ", which is no premise that it closes";
            }
            ends.pop_back();
        }
        depths_.push_back(static_cast<int>(ends.size()));
    }
    line_ = 0;
    return "";
}

std::string Judge::Decline(const std::string& reason) {
    verdict_ = Verdict::Declined;
    return Named(line_) + " cannot be judged: " + reason;
}

std::string Judge::LineFault() {
    if (RowOf(Own().rule) == nullptr) {
        return Decline("this checker does not know rule " + std::to_string(Own().rule));
    }
    std::string fault = LayoutFault(proof_, line_, depths_[static_cast<std::size_t>(line_)]);
    if (fault.empty()) fault = TextFault();
    if (fault.empty()) fault = ListFault();
    if (fault.empty()) fault = ReferenceFault();
    if (fault.empty()) fault = RuleFault();
    if (!fault.empty()) return fault;
    if (Own().rule == static_cast<int>(Rule::Conclusion)) scope_.Close(Own().arg1);
    fault = ColourFault();
    Enter();
    return fault;
}

std::string Judge::TextFault() {
    const std::string_view text = StatementText(proof_, line_);
    if (text.size() > LongestStatement) return Decline("it is too long");
    const Statement& statement = reader_.Read(text, depths_[static_cast<std::size_t>(line_)] + 1);
    if (statement.tooDeep) return Decline(statement.error);
    if (statement.error.empty()) return "";
    return Named(line_) + " is no statement of the editor: " + statement.error;
}

// The lists of names against the text. Leaves in reds_ which names the record calls red.
std::string Judge::ListFault() {
    const Record& own = Own();
    std::string_view free = own.freeVars;
    std::string_view fixed = own.fixedVars;
    const bool startBlank = (free.empty() || free.front() == ' ') &&
                            (fixed.empty() || (fixed.front() == ' ' && fixed.size() > 1));
    if (!free.empty()) free.remove_prefix(1);
    if (!fixed.empty()) fixed.remove_prefix(1);
    const auto takes = [](std::string_view& list, std::string_view name) {
        if (!list.starts_with(name) || list.size() == name.size() || list[name.size()] != ' ') {
            return false;
        }
        list.remove_prefix(name.size() + 1);
        return true;
    };
    const std::vector<int>& names = reader_.Last().freeNames;
    bool agrees = startBlank && own.freeVars.empty() == names.empty();
    reds_.clear();
    for (const int name : names) {
        const std::string_view text = terms_.NameText(name);
        agrees = agrees && takes(free, text);
        reds_.push_back(takes(fixed, text) ? 1 : 0);
    }
    if (!agrees || !free.empty()) {
        return Named(line_) + " has a record whose free names are not those of its text";
    }
    if (!fixed.empty()) {
        return Named(line_) + " has a record whose red names are not among its free names";
    }
    if (!own.spareVars.empty()) return Named(line_) + " has a record with names that are spare";
    if (!own.specName.empty() && own.rule != static_cast<int>(Rule::ESpec) &&
        own.rule != static_cast<int>(Rule::USpec)) {
        return Named(line_) + " has a record with the name of a witness, but is no E Spec";
    }
    return "";
}

std::string Judge::ReferenceFault() const {
    if (Own().rule == static_cast<int>(Rule::Premise)) {
        return Own().arg2 == 0 ? "" : Misfit("it takes no reference");
    }
    const RuleRow& row = *RowOf(Own().rule);
    const int args[] = {Own().arg1, Own().arg2};
    for (int i = 0; i < 2; ++i) {
        const int arg = args[i];
        if (arg == 0 && i < row.fewest) return Misfit("a reference is missing");
        if (arg != 0 && i >= row.most) return Misfit("it takes no such reference");
        if (arg < 0 || arg >= line_) return Misfit(Named(arg) + " is not ahead of it");
        if (arg != 0 && !scope_.InForce(arg)) return Misfit(Named(arg) + " is in a closed block");
    }
    return "";
}

std::string Judge::Misfit(const std::string& reason) const {
    std::string sentence = Named(line_);
    const bool isPremise = Own().rule == static_cast<int>(Rule::Premise);
    const int arg1 = isPremise ? 0 : Own().arg1;
    const char* from = " does not follow from ";
    for (const int arg : {arg1, Own().arg2}) {
        if (arg == 0) continue;
        sentence += from + Named(arg);
        from = " and ";
    }
    if (arg1 == 0 && Own().arg2 == 0) sentence += " does not follow";
    return sentence + " by " + std::string(RuleName(Rule{Own().rule})) + " (" + reason + ")";
}

std::string Judge::RuleFault() {
    const bool isConclusion = Own().rule == static_cast<int>(Rule::Conclusion);
    const bool isPremise = Own().rule == static_cast<int>(Rule::Premise);
    const Step step = {terms_,
                       schemes_,
                       scope_,
                       proof_.records,
                       line_,
                       reader_.Last().term,
                       isPremise ? 0 : TermOf(Own().arg1),
                       TermOf(isConclusion ? line_ - 1 : Own().arg2),
                       reader_.Last().freeNames,
                       reds_,
                       patience_};
    const std::string reason = RowOf(Own().rule)->test(step);
    if (patience_ <= 0) return Decline("that takes too long");
    return reason.empty() ? "" : Misfit(reason);
}

// A name is new if nothing in force ahead of the innermost open premise speaks of it; the editor
// shows it green. When lines are put in ahead, a red name may become new, but not the reverse.
std::string Judge::ColourFault() const {
    int limit = scope_.OpenPremises().empty() ? 0 : scope_.OpenPremises().back();
    if (Own().rule == static_cast<int>(Rule::Premise)) limit = line_;
    const std::vector<int>& names = reader_.Last().freeNames;
    for (std::size_t i = 0; i < names.size(); ++i) {
        const int use = scope_.FirstUse(names[i]);
        if (reds_[i] != 0 || (limit != 0 && (use == 0 || use >= limit))) continue;
        const std::string name(terms_.NameText(names[i]));
        return Named(line_) + " has a record that calls the name " + name + " new, but " +
               (limit == 0 ? "no premise is open" : "it stands in " + Named(use));
    }
    return "";
}

void Judge::Enter() {
    const std::vector<int>& names = reader_.Last().freeNames;
    // Of a U Spec the name is in use already.
    const int newWitness = Own().specName.empty() ? -1 : terms_.NameNumber(Own().specName);
    scope_.Enter(names, reds_);
    if (Own().rule == static_cast<int>(Rule::Premise)) scope_.OpenPremise();
    for (const int name : names) {
        if (name == newWitness && scope_.FirstUse(name) == line_) scope_.BringIn(name);
        const int witness = scope_.WitnessLine(name);
        if (witness != 0) witnesses_.emplace_back(line_, witness);
    }
    lineTerms_.push_back(reader_.Last().term);
}

// The first axiom that names it, 0 if none does.
int Judge::AxiomThatNames(std::string_view name) {
    const auto number = static_cast<std::size_t>(terms_.NameNumber(name));
    return number < axiomsOf_.size() ? axiomsOf_[number] : 0;
}

// An axiom about n is known to be meant of the n of the axioms, or else it is assumed of every n.
std::string Judge::Scheme(std::string_view name, std::string_view everyN) {
    for (const int free : reader_.Last().freeNames) {
        const std::string_view text = terms_.NameText(free);
        const bool isParameter =
            Own().rule == static_cast<int>(Rule::Induction) && text != "n" && text != "1";
        if (!isParameter && AxiomThatNames(text) == 0) {
            return std::string(name) + std::string(everyN);
        }
    }
    return std::string(name);
}

void Judge::NoteGround() {
    const Rule rule{Own().rule};
    const Term term = lineTerms_.back();
    switch (rule) {
        case Rule::Axiom: {
            for (const int name : reader_.Last().freeNames) {
                const auto place = static_cast<std::size_t>(name);
                if (axiomsOf_.size() <= place) axiomsOf_.resize(place + 1, 0);
                if (axiomsOf_[place] == 0) axiomsOf_[place] = line_;
            }
            const std::string group = schemes_.GroupAxiom(term);
            const auto kind = group.empty() ? Ground::Kind::Created : Ground::Kind::Menu;
            grounds_.push_back({kind, line_, group});
            return;
        }
        case Rule::Induction: {
            const bool every = !Scheme("", "every").empty();
            const int about = every ? 0 : AxiomThatNames("n");
            grounds_.push_back({Ground::Kind::Menu, line_,
                                every ? "Induction for every n"
                                      : "Induction for n of line " + std::to_string(about),
                                about});
            return;
        }
        case Rule::Definition:
            grounds_.push_back(
                {Ground::Kind::Menu, line_,
                 Scheme("definition of " + schemes_.DefinedSign(term), " for every n")});
            return;
        default:
            break;
    }
    const bool isMenu = rule == Rule::Subset || RowOf(Own().rule)->test == SetAxiom;
    if (isMenu) grounds_.push_back({Ground::Kind::Menu, line_, std::string(RuleName(rule))});
    if (rule == Rule::Premise) grounds_.push_back({Ground::Kind::Premise, line_, ""});
}

std::vector<char> Judge::LinesInForce() const {
    std::vector<char> inForce(1, 0);
    for (int line = 1; line <= scope_.Count(); ++line) {
        inForce.push_back(scope_.InForce(line) ? 1 : 0);
    }
    return inForce;
}

}  // namespace tessaryn::check

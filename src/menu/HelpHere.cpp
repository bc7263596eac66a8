#include "menu/HelpHere.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <vector>

#include "document/Document.h"
#include "entry/ActiveStmts.h"
#include "expr/NameList.h"
#include "expr/Operands.h"
#include "expr/Parse.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"
#include "menu/Fits.h"
#include "view/Display.h"
#include "view/NameStatus.h"

namespace tessaryn {
namespace {

struct RuleHelp {
    int ruleMode;
    const char* page;
    const char* name = "";  // in a note, as the menu has it; "" if no click on a line starts it
};

const RuleHelp RuleHelps[] = {
    {Rule::Premise, "rule-premise"},
    {Rule::Axiom, "rule-axiom"},
    {Rule::Conclusion, "rule-conclusion"},
    {Rule::Split, "rule-split", "Split"},
    {Rule::Detach, "rule-detach", "Detachment"},
    {Rule::Cases, "rule-cases", "Cases"},
    {Rule::Spec, "rule-specify", "Specify"},
    {Rule::ESpec, "rule-specify"},
    {Rule::USpec, "rule-specify"},
    {Rule::EGen, "rule-egen", "Existential Generalization"},
    {Rule::Rename, "rule-rename", "Rename"},
    {Rule::Reorder, "rule-reorder", "Reorder"},
    {Rule::Substitute, "rule-substitute", "Substitute"},
    {Rule::Subset, "sets", "Subset"},
    {Rule::RemDNeg, "rule-negation", "Remove '~~'"},
    {Rule::Quant, "rule-negation", "Quantifier Switch"},
    {Rule::ImplyAnd, "rule-rewrites", "Implies-And"},
    {Rule::ImplyOr, "rule-rewrites", "Implies-Or"},
    {Rule::IffAnd, "rule-rewrites", "Iff-And"},
    {Rule::DeMorgan, "rule-rewrites", "De Morgan"},
    {Rule::Contra, "rule-rewrites", "Contrapositive"},
    {Rule::Sym, "rule-symmetry", "Symmetry"},
    {Rule::Join, "rule-join", "Join"},
    {Rule::Copy, "rule-copy", "Copy statement"},
    {Rule::ArbOr, "rule-arbitrary", "Arb Or"},
    {Rule::ArbAnte, "rule-arbitrary", "Arb Ante"},
    {Rule::ArbCons, "rule-arbitrary", "Arb Cons"},
    {Rule::OrNot, "rule-arbitrary"},
    {Rule::Reflex, "rule-reflexivity"},
    {Rule::CartProd, "sets"},
    {Rule::PowerSet, "sets"},
    {Rule::SetEquality, "sets"},
    {Rule::NtupleEquality, "sets"},
    {Rule::PwUnion, "sets"},
    {Rule::ArbUnion, "sets"},
    {Rule::Choice, "sets"},
    {Rule::Function, "sets"},
    {Rule::FnSpace, "sets"},
    {Rule::FnEquality, "sets"},
    {Rule::Definition, "numbers"},
    {Rule::Induction, "numbers"},
    {DeleteAllRefMode, "deleting"},
    {Rule::DeleteAtSub, "deleting"},
    {Rule::SetInsertMode, "insert-mode"},
    {ToggleHighlightMode, "folding"},
};

// The forms that are for one thing, whatever rule is pending.
struct FormHelp {
    const char* form;
    const char* page;
};
const FormHelp FormHelps[] = {
    {"Comment", "comments"},      {"EditCaption", "comments"},
    {"Find", "finding"},          {"Generalize", "rule-egen"},
    {"InductionForm", "numbers"}, {"PrintProof", "printing"},
    {"Recovery", "files"},        {"SaveChanges", "files"},
    {"SelectDir", "settings"},    {"Substitution", "rule-substitute"},
    {"SubsetFrm", "sets"},
};

const RuleHelp* HelpOf(int ruleMode) {
    const auto* found =
        std::find_if(std::begin(RuleHelps), std::end(RuleHelps),
                     [&](const RuleHelp& help) { return help.ruleMode == ruleMode; });
    return found == std::end(RuleHelps) ? nullptr : found;
}

// --- the note

using Names = std::vector<std::string>;

void Add(Names& names, int ruleMode) {
    const std::string name = HelpOf(ruleMode)->name;
    if (!HoldsName(names, name)) names.push_back(name);
}

// "Split", "Split and Rename", "Split, Rename and Reorder"
std::string Listed(const Names& names) {
    std::string list = names.front();
    for (std::size_t i = 1; i < names.size(); ++i) {
        list += (i + 1 == names.size() ? " and " : ", ") + names[i];
    }
    return list;
}

// The rules that every statement fits: a click on it, and the rest is asked for.
bool TakesAll(const ClickRow& row) {
    return row.ruleMode == Rule::Copy || row.ruleMode == Rule::Join ||
           std::holds_alternative<LineAndBoxClick>(row.click);
}

// A name that stands free in the statement, for which E Gen can put a quantifier.
bool IsFreeName(int line, const std::string& token) {
    if (!HoldsName(StmtTable[line].FreeVars, token)) return false;
    const Expression name = ParseExpression(token);
    return name.error.empty() && IsAlgebraic(Root(name).Rule);
}

std::string RulesThatTake(int line, const Expression& statement, int token) {
    Names whole;
    Names atSign;
    Names all;
    for (const ClickRow& row : ClickTable()) {
        const auto* lines = std::get_if<LinesClick>(&row.click);
        const auto takes = lines != nullptr ? lines->first : row.takes;
        if (TakesAll(row)) {
            Add(all, row.ruleMode);
        } else if (takes != nullptr && takes(statement).Applies()) {
            Add(whole, row.ruleMode);
        }
    }
    ForEachFit(statement, [&](const Fit& fit) {
        if (TakesAll(fit.row)) return;
        if (fit.sign == 0) Add(whole, fit.row.ruleMode);
        if (token > 0 && fit.sign == token) Add(atSign, fit.row.ruleMode);
    });
    const std::string sign = token > 0 ? TokenAt(statement, token).Token : "";
    if (IsFreeName(line, sign)) Add(atSign, Rule::EGen);

    std::string note;
    if (!whole.empty()) note += "Line " + std::to_string(line) + " fits " + Listed(whole) + ". ";
    if (!atSign.empty()) note += "The " + sign + " here fits " + Listed(atSign) + ". ";
    return note + "Any line fits " + Listed(all) + ".";
}

// A new line leaves the caret right behind its annotation, and is what is meant there.
bool CaretIsAtStatement() {
    RichTextBox& display = Proof.RTB;
    const int caret = display.SelStart;
    if (ShownStmtAt(caret + 1) > 0) return true;
    if (display.SelLength > 0 || ShownStmtAt(caret) == 0) return false;
    display.SelStart = caret - 1;
    return true;
}

std::string NoteAtCaret() {
    const std::optional<NameStatus> name = NameStatusAt(Proof.RTB.SelStart);
    int line = 0;
    int token = 0;
    SelectToken(line, token);
    return (line > 0 ? RulesThatTake(line, InHand, token) : WhyNoActiveStmt()) +
           (name ? " " + name->words : "");
}

}  // namespace

std::string PageOfPendingRule() {
    const RuleHelp* help = HelpOf(RuleMode);
    return help == nullptr ? "" : help->page;
}

Help HelpHere(const Form& form, const Control* focus) {
    for (const FormHelp& help : FormHelps) {
        if (form.Name == help.form) return {help.page, ""};
    }
    const bool inProof = &form == &Proof && focus == &Proof.RTB && RuleMode == 0;
    if (inProof && CaretIsAtStatement()) return {"", NoteAtCaret()};
    return {PageOfPendingRule(), ""};
}

}  // namespace tessaryn

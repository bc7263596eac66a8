#include "cli/StateDump.h"

#include <cstdio>
#include <nlohmann/json.hpp>

#include "cli/FormState.h"
#include "cli/HeadlessPlatform.h"
#include "cli/Keyboard.h"
#include "document/Document.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"
#include "text/Encoding.h"
#include "view/InsertMode.h"
#include "view/Undo.h"

namespace tessaryn {

namespace {

using Json = nlohmann::ordered_json;

Json StatementAsJson(const Statement& stmt) {
    return {{"Rule", stmt.Rule},
            {"Arg1", stmt.Arg1},
            {"Arg2", stmt.Arg2},
            {"SpecName", ToUtf8(stmt.SpecName)},
            {"FreeVars", ToUtf8(stmt.FreeVars)},
            {"FixedVars", ToUtf8(stmt.FixedVars)},
            {"SpareVars", ToUtf8(stmt.SpareVars)},
            {"Visible", stmt.Visible},
            {"StartLine", stmt.StartLine},
            {"EndUserComment", stmt.EndUserComment},
            {"StartStmt", stmt.StartStmt},
            {"EndStmt", stmt.EndStmt},
            {"StartRule", stmt.StartRule},
            {"EndRule", stmt.EndRule},
            {"ViewerStartLine", stmt.ViewerStartLine},
            {"Flagged", stmt.Flagged},
            {"NewNumber", stmt.NewNumber},
            {"Highlight", stmt.Highlight}};
}

Json StatementsAsJson() {
    Json statements = Json::array();
    for (int number = 1; number <= StmtCount; ++number) {
        statements.push_back(StatementAsJson(StmtTable[number]));
    }
    return statements;
}

std::string ColourName(Colour colour) {
    char name[8];
    std::snprintf(name, sizeof name, "#%06x", colour & 0xFFFFFFU);
    return name;
}

Json ViewAsJson(RichTextBox& view) {
    Json runs = Json::array();
    for (const FormatRun& run : view.Runs()) {
        const CharFormat& format = run.format;
        runs.push_back({run.start, run.length, format.Font, format.Size, ColourName(format.Color),
                        format.Bold});
    }
    return {{"text", ToUtf8(view.GetText())},
            {"selStart", view.GetSelStart()},
            {"selLength", view.GetSelLength()},
            {"runs", runs}};
}

bool IsLabel(Control& control) {
    return dynamic_cast<Label*>(&control) != nullptr;
}

bool HoldsValue(Control& control) {
    return dynamic_cast<RichTextBox*>(&control) != nullptr ||
           dynamic_cast<TextBox*>(&control) != nullptr ||
           dynamic_cast<CheckBox*>(&control) != nullptr ||
           dynamic_cast<DirectoryBox*>(&control) != nullptr ||
           dynamic_cast<OptionButton*>(&control) != nullptr;
}

// Labels first, then what the user can fill in.
Json ControlsAsJson(const Form& form) {
    Json controls = Json::object();
    for (auto* const belongs : {IsLabel, HoldsValue}) {
        for (Control* control : form.Controls) {
            if (belongs(*control)) controls[control->Name] = ToUtf8(ControlText(*control));
        }
    }
    return controls;
}

Json FormAsJson(const Form& form) {
    if (&form == &Proof) return nullptr;
    const Control* focus = FocusOf(form);
    return {{"name", form.Name},
            {"caption", ToUtf8(form.Caption)},
            {"focus", focus == nullptr ? "" : focus->Name},
            {"controls", ControlsAsJson(form)}};
}

Json ReasonsAsJson(std::size_t from) {
    Json reasons = Json::array();
    for (std::size_t i = from; i < Headless.Beeps.size(); ++i) {
        reasons.push_back(ToUtf8(Headless.Beeps[i]));
    }
    return reasons;
}

Json MessagesAsJson(std::size_t from) {
    Json messages = Json::array();
    for (std::size_t i = from; i < Headless.Messages.size(); ++i) {
        const MessageShown& message = Headless.Messages[i];
        messages.push_back({{"title", ToUtf8(message.title)},
                            {"text", ToUtf8(message.text)},
                            {"answer", AnswerName(message.answer)}});
    }
    return messages;
}

}  // namespace

std::string StateAsJson(std::size_t beepsFrom, std::size_t messagesFrom) {
    const Json state = {{"title", ToUtf8(Proof.Caption)},
                        {"status", ToUtf8(BoxText(Proof.StatusLine))},
                        {"ruleMode", RuleMode},
                        {"firstClick", FirstClick},
                        {"insertMode", InsertMode},
                        {"insertLine", InsertLine},
                        {"insertLabel", Proof.InsertLineLabel.Caption},
                        {"insertChecked", Proof.optInsert.Checked},
                        {"proofChanged", ProofChanged},
                        {"canUndo", Proof.optUndo.Enabled},
                        {"canRedo", Proof.optRedo.Enabled},
                        {"fileName", ToUtf8(ProofFileName)},
                        {"caption", ToUtf8(ProofCaption)},
                        {"introEnd", IntroEnd},
                        {"proofText", ToUtf8(std::string(ProofText.View()))},
                        {"statements", StatementsAsJson()},
                        {"view", ViewAsJson(Proof.RTB)},
                        {"form", FormAsJson(TopForm())},
                        {"beeps", Headless.Beeps.size() - beepsFrom},
                        {"reasons", ReasonsAsJson(beepsFrom)},
                        {"messages", MessagesAsJson(messagesFrom)}};
    return state.dump(-1, ' ', false, Json::error_handler_t::replace);
}

}  // namespace tessaryn

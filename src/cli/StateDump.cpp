#include "cli/StateDump.h"

#include <cstdio>

#include "cli/FormState.h"
#include "cli/HeadlessPlatform.h"
#include "cli/JsonWriter.h"
#include "cli/Keyboard.h"
#include "document/Document.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"
#include "text/Encoding.h"
#include "view/InsertMode.h"
#include "view/Undo.h"

namespace tessaryn {

namespace {

void WriteStatement(const Statement& stmt, JsonWriter& json) {
    json.Object([&] {
        json.Member("Rule", stmt.Rule);
        json.Member("Arg1", stmt.Arg1);
        json.Member("Arg2", stmt.Arg2);
        json.Member("SpecName", ToUtf8(stmt.SpecName));
        json.Member("FreeVars", ToUtf8(stmt.FreeVars));
        json.Member("FixedVars", ToUtf8(stmt.FixedVars));
        json.Member("SpareVars", ToUtf8(stmt.SpareVars));
        json.Member("Visible", stmt.Visible);
        json.Member("StartLine", stmt.StartLine);
        json.Member("EndUserComment", stmt.EndUserComment);
        json.Member("StartStmt", stmt.StartStmt);
        json.Member("EndStmt", stmt.EndStmt);
        json.Member("StartRule", stmt.StartRule);
        json.Member("EndRule", stmt.EndRule);
        json.Member("ViewerStartLine", stmt.ViewerStartLine);
        json.Member("Flagged", stmt.Flagged);
        json.Member("NewNumber", stmt.NewNumber);
        json.Member("Highlight", stmt.Highlight);
    });
}

std::string ColourName(Colour colour) {
    char name[8];
    std::snprintf(name, sizeof name, "#%06x", colour & 0xFFFFFFU);
    return name;
}

void WriteView(RichTextBox& view, JsonWriter& json) {
    json.Object([&] {
        json.Member("text", ToUtf8(view.GetText()));
        json.Member("selStart", view.GetSelStart());
        json.Member("selLength", view.GetSelLength());
        json.Key("runs");
        json.List([&] {
            for (const FormatRun& run : view.Runs()) {
                const CharFormat& format = run.format;
                json.Row(run.start, run.length, format.Font, format.Size, ColourName(format.Color),
                         format.Bold);
            }
        });
    });
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
void WriteControls(const Form& form, JsonWriter& json) {
    for (auto* const belongs : {IsLabel, HoldsValue}) {
        for (Control* control : form.Controls) {
            if (belongs(*control)) json.Member(control->Name, ToUtf8(ControlText(*control)));
        }
    }
}

void WriteForm(const Form& form, JsonWriter& json) {
    if (&form == &Proof) return json.Null();
    const Control* focus = FocusOf(form);
    json.Object([&] {
        json.Member("name", form.Name);
        json.Member("caption", ToUtf8(form.Caption));
        json.Member("focus", focus == nullptr ? "" : focus->Name);
        json.Key("controls");
        json.Object([&] { WriteControls(form, json); });
    });
}

void WriteMessage(const MessageShown& message, JsonWriter& json) {
    json.Object([&] {
        json.Member("title", ToUtf8(message.title));
        json.Member("text", ToUtf8(message.text));
        json.Member("answer", AnswerName(message.answer));
    });
}

}  // namespace

void WriteState(std::size_t beepsFrom, std::size_t messagesFrom, std::ostream& out) {
    JsonWriter json(out);
    json.Object([&] {
        json.Member("title", ToUtf8(Proof.Caption));
        json.Member("status", ToUtf8(BoxText(Proof.StatusLine)));
        json.Member("ruleMode", RuleMode);
        json.Member("firstClick", FirstClick);
        json.Member("insertMode", InsertMode);
        json.Member("insertLine", InsertLine);
        json.Member("insertLabel", Proof.InsertLineLabel.Caption);
        json.Member("insertChecked", Proof.optInsert.Checked);
        json.Member("proofChanged", ProofChanged);
        json.Member("canUndo", Proof.optUndo.Enabled);
        json.Member("canRedo", Proof.optRedo.Enabled);
        json.Member("fileName", ToUtf8(ProofFileName));
        json.Member("caption", ToUtf8(ProofCaption));
        json.Member("introEnd", IntroEnd);
        json.Member("proofText", ToUtf8(std::string(ProofText.View())));
        json.Key("statements");
        json.List([&] {
            for (int line = 1; line <= StmtCount; ++line) WriteStatement(StmtTable[line], json);
        });
        json.Key("view");
        WriteView(Proof.RTB, json);
        json.Key("form");
        WriteForm(TopForm(), json);
        json.Member("beeps", Headless.Beeps.size() - beepsFrom);
        json.Key("reasons");
        json.List([&] {
            for (std::size_t i = beepsFrom; i < Headless.Beeps.size(); ++i) {
                json.Value(ToUtf8(Headless.Beeps[i]));
            }
        });
        json.Key("messages");
        json.List([&] {
            for (std::size_t i = messagesFrom; i < Headless.Messages.size(); ++i) {
                WriteMessage(Headless.Messages[i], json);
            }
        });
    });
    out << '\n';
}

}  // namespace tessaryn

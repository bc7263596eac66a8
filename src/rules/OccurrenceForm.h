// What the dialogues Generalize and Substitution share: a statement with the occurrences of a term
// marked, which are replaced by a click or all at once, and the end of the rule.
#pragma once

#include <string>

#include "expr/Occurrences.h"
#include "platform/Form.h"
#include "platform/RichTextBox.h"

namespace tessaryn {

struct OccurrenceForm : Form {
    Label StatementTextLabel;
    RichTextBox RTB{*this, "RTB"};
    RichTextBox SaveRTB{*this, "SaveRTB"};  // RTB as first shown; hidden
    Label StatusLine{*this, "StatusLine"};
    Button cmdSelectAll{*this, "cmdSelectAll", "Select All"};
    Button cmdReset{*this, "cmdReset", "Reset"};
    Button cmdContinue{*this, "cmdContinue", "Continue..."};
    Button cmdCancel{*this, "cmdCancel", "Cancel"};

  protected:
    OccurrenceForm(std::string name, std::string label);

    // What a click on the statement and the buttons do.
    virtual void Pick() = 0;
    virtual void SelectAll() = 0;
    virtual void Reset() = 0;
    virtual void Continue() = 0;

    // Shows statement `line` with the occurrences of a term marked.
    void ShowStatement(int line, const NodeList& term, const std::string& termText);

    // Reads what stands in the box now, so that earlier replacements count; from now on Reset can
    // be pressed. False after a parser error, which StatusLine shows.
    bool ReadStatement(Expression& statement);
    // Replace the occurrence at the caret, if there is one, or all of them; then Continue can be
    // pressed.
    void ReplaceAtCaret(const Expression& statement, const std::string& replacement);
    void ReplaceAll(const Expression& statement, Search search, const std::string& replacement);

    void Refuse(const std::string& message, Control& focus);
    // Makes `text` the new statement. False if it does not parse, which has been refused.
    bool ParseOrRefuse(const std::string& text);
    // Writes the new statement and closes; stays open with the reason if there is no room.
    void WriteAndClose();

  private:
    NodeList term_ = NodeList(1);
    std::string termText_;
};

}  // namespace tessaryn

// The editing box that every dialogue with an expression or a comment has: typed "@" shown as
// epsilon, the palette of symbols, cut, copy and paste, and an undo of its own, one level deep.
//
// A dialogue holds one editor as a member and hands it the box and the controls that it has; the
// names of those differ from form to form.
#pragma once

#include <span>
#include <string>
#include <utility>
#include <vector>

#include "expr/Expression.h"
#include "platform/Controls.h"
#include "platform/RichTextBox.h"

namespace tessaryn {

// Puts the element sign in the place of the selection; what is typed next has the font of
// statements again.
void InsertElementSign(RichTextBox& box);

// Moves the end of the selection on to the end of the line while the mouse is dragged past the
// right edge of a box, one character a tick.
struct SelectionExtension {
    void MouseMoved(RichTextBox& box, Timer& timer);
    void Tick(RichTextBox& box, Timer& timer);
    void ButtonUp(Timer& timer);
    bool ExtendDone = false;  // has reached a line end; stays until the button comes up
};

struct PaletteEntry;

// The menu of editing commands, and what else a form's menus hold for the editor.
struct EditMenu {
    explicit EditMenu(Form& form);

    MenuItem mnuEdit, optUndo, optRedo, optCut, optCopy, optPaste, optDelete, optClear;

    struct Insertion {
        MenuItem* item;
        const char* text;
    };
    std::vector<Insertion> Palette;  // what each item of mnuNotation inserts
    std::vector<std::pair<const char*, MenuItem*>> ControlKeys;  // the letters that work with Ctrl
};

// The tool buttons of the editing commands.
struct EditButtons {
    explicit EditButtons(Form& form, const char* nameOfUndo = "cmdUndo");

    Button Undo, Redo, Cut, Copy, Paste, Delete, Clear;
};

// The two menus of a dialogue for expressions: editing commands and palette.
struct EditorMenus : EditMenu {
    // changes: where the palette of this form differs.
    explicit EditorMenus(Form& form, std::span<const PaletteEntry> changes = {});

    MenuItem mnuNotation, optAnd, optOr, optNot, optImplies, optIff, optUnion, optIntersection,
        optEqual, optLessThan, optGreaterThan, optLessThanOrEqual, optGreaterThanOrEqual, optAdd,
        optSubtract, optMultiply, optDivide, optExponent, optNegative, optALL, optExist, optSum,
        optProd, optelement, optComplement;
};

// An item of the palette under the name that it has in a form, and what it inserts at the caret:
// "@" stands for the element sign, "" for nothing. The caret goes behind the text, or behind its
// first "(".
struct PaletteEntry {
    MenuItem EditorMenus::*item;
    const char* name;
    const char* text;
};

// How the box of a form differs from one for expressions.
struct EditorStyle {
    Colour colour = 0;                   // of its text
    bool typesInColour = false;          // what is typed has it too, whatever it is typed beside
    const char* behindElementSign = "";  // what comes with a typed "@", behind the caret
    bool undoesInsertions = false;       // Undo takes back what was inserted by menu or button
};

class ExpressionEditor {
  public:
    ExpressionEditor(RichTextBox& box, EditMenu& menus, Timer& timer, EditorStyle style = {});

    // Gives the tool buttons the actions that their twins in the menu have; Undo and Redo follow
    // the enabled state of theirs.
    void BindButtons(EditButtons& buttons);

    // Makes a tool button insert a text, as a palette item does.
    void BindInsertion(Button& button, const std::string& text);

    // What each activation of the dialogue does: empties the box, in its colour, not bold, in the
    // size of statements, nothing to undo.
    void Start();

    // The content as an expression, "@" for the element sign, without line breaks at its ends.
    std::string Expression();
    // The same with all its line breaks, so that places in it are places in the box.
    std::string WholeExpression();

    // Takes the red mark of an earlier failure away.
    void ClearMarks();
    // Marks the token of NewStmtText at ParseErrorPos red and puts the caret there.
    void MarkParseError();
    // Marks the first token of that text of the expression in the tables in the same way.
    void MarkName(const std::string& name);

    // Empties the box, so that Undo brings the content back.
    void Clear();

    void DisableUndo();

  private:
    void Insert(const std::string& text);
    void SetTypingFormat();
    void TypeElementSign();
    void SaveForUndo();
    void Undo();
    void Redo();
    void Cut();
    void Delete();
    void Empty();
    void MarkRed(const TokenRec& token);
    bool KeyDown(const KeyEvent& key);
    bool ControlKey(const std::string& letter);
    void SetUndoEnabled(bool undo, bool redo);

    RichTextBox& box_;
    EditMenu& menus_;
    Timer& timer_;
    EditorStyle style_;
    EditButtons* buttons_ = nullptr;
    std::string boxRedoText_;
    SelectionExtension extension_;
};

}  // namespace tessaryn

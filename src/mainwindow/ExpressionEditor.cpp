#include "mainwindow/ExpressionEditor.h"

#include <algorithm>
#include <utility>

#include "expr/Lex.h"
#include "mainwindow/Proof.h"
#include "platform/Platform.h"
#include "view/Display.h"

namespace tessaryn {
namespace {

constexpr Colour ErrorRed = Rgb(255, 0, 0);

struct PaletteRow {
    MenuItem EditorMenus::*item;
    const char* name;
    const char* caption;
    const char* text;
    int caretMove;  // from the front of the inserted text
};

using M = EditorMenus;

// The element sign and the complement, which insert no plain text, follow in the constructor.
const PaletteRow Palette[] = {
    {&M::optAnd, "optAnd", "And                               &&", "&", 1},
    {&M::optOr, "optOr", "Or                                  |", "|", 1},
    {&M::optNot, "optNot", "Not                                ~", "~", 1},
    {&M::optImplies, "optImplies", "Implies                           =>", "=>", 2},
    {&M::optIff, "optIff", "If and only if                   <=>", "<=>", 3},
    {&M::optALL, "optALL", "Universal Quantifier       ALL([var]):           Ctrl+A", "ALL():", 4},
    {&M::optExist, "optExist", "Existential Quantifier     EXIST([var]):       Ctrl+E",
     "EXIST():", 6},
    {&M::optUnion, "optUnion", "Union                             ||", "||", 2},
    {&M::optIntersection, "optIntersection", "Intersection                    &&&&", "&&", 2},
    {&M::optEqual, "optEqual", "Equal                             =", "=", 1},
    {&M::optLessThan, "optLessThan", "Less than                       <", "<", 1},
    {&M::optGreaterThan, "optGreaterThan", "Greater than                  >", ">", 1},
    {&M::optLessThanOrEqual, "optLessThanOrEqual", "Less than or equal         <=", "<=", 2},
    {&M::optGreaterThanOrEqual, "optGreaterThanOrEqual", "Greater than or equal    >=", ">=", 2},
    {&M::optAdd, "optAdd", "Add                                +", "+", 1},
    {&M::optSubtract, "optSubtract", "Subtract                         -", "-", 1},
    {&M::optMultiply, "optMultiply", "Multiply                          *", "*", 1},
    {&M::optDivide, "optDivide", "Divide                            /", "/", 1},
    {&M::optExponent, "optExponent", "Exponent                       ^", "^", 1},
    {&M::optNegative, "optNegative", "Negative                        _", "_", 1},
    {&M::optSum, "optSum", "Summation  SUM([var],[start],[end]):         Ctrl+S", "SUM(,,):", 4},
    {&M::optProd, "optProd", "Product       PROD([var],[start],[end]):       Ctrl+P",
     "PROD(,,):", 5},
};

struct EditRow {
    MenuItem EditorMenus::*item;
    const char* name;
    const char* caption;
};

const EditRow EditItems[] = {
    {&M::optUndo, "optUndo", "Undo                    Ctrl+Z"},
    {&M::optRedo, "optRedo", "Redo"},
    {&M::optCut, "optCut", "Cut                       Ctrl+X"},
    {&M::optCopy, "optCopy", "Copy                    Ctrl+C"},
    {&M::optPaste, "optPaste", "Paste                    Ctrl+V"},
    {&M::optDelete, "optDelete", "Delete                   Del"},
    {&M::optClear, "optClear", "Clear"},
};

void Name(MenuItem& item, MenuItem& title, const char* name, const char* caption) {
    item.Name = name;
    item.Caption = caption;
    title.Items.push_back(&item);
}

}  // namespace

// --- clipboard

void Copy(RichTextBox& box) {
    box.SetFocus();
    if (box.SelLength == 0) return Beep("Nothing is selected: select the text to copy first.");
    ClipLength = box.SelLength;
    const std::string rtf = box.SelRTF;
    WorkArea.RTB.TextRTF = rtf;
    const std::string plain = ConvertEpsilon(WorkArea.RTB);
    if (Proof.optRichTextMode.Checked) {
        ClipboardSetRtf(rtf, plain);
    } else {
        ClipboardSetText(plain);
    }
}

void Paste(RichTextBox& box) {
    BoxUndoText = box.TextRTF;
    box.SelText = "";
    const int caret = box.SelStart;
    RichTextBox& work = WorkArea.RTB;
    work.TextRTF = box.TextRTF;
    work.SelStart = caret;
    const std::string rtf = Proof.optRichTextMode.Checked ? ClipboardRtf() : "";
    if (rtf.empty()) {
        work.SelFontName = StatementFont;
        work.SelText = ClipboardText();
    } else {
        work.SelRTF = rtf;
    }
    ReformatWA(Black);
    box.TextRTF = work.TextRTF;
    box.SelStart = caret + ClipLength;
    box.SetFocus();
}

// --- selection extension

void SelectionExtension::MouseMoved(RichTextBox& box, Timer& timer) {
    if (!PointerBeyondRightEdge(box)) {
        ButtonUp(timer);
    } else if (!done) {
        timer.Enabled = true;
    }
}

void SelectionExtension::Tick(RichTextBox& box, Timer& timer) {
    const int end = box.SelStart + box.SelLength;
    if (end == 0) return;
    const std::string& text = box.GetText();
    const auto last = static_cast<std::size_t>(end) - 1;
    if (last + 1 >= text.size() || text[last] == '\n') {
        done = true;
        timer.Enabled = false;
    } else {
        box.SelLength = box.SelLength + 1;
    }
}

void SelectionExtension::ButtonUp(Timer& timer) {
    timer.Enabled = false;
    done = false;
}

// --- menus

EditorMenus::EditorMenus(Form& form)
    : mnuEdit(form, "mnuEdit", "&Edit"),
      optUndo(form, ""),
      optRedo(form, ""),
      optCut(form, ""),
      optCopy(form, ""),
      optPaste(form, ""),
      optDelete(form, ""),
      optClear(form, ""),
      mnuNotation(form, "mnuNotation", "&Notation"),
      optAnd(form, ""),
      optOr(form, ""),
      optNot(form, ""),
      optImplies(form, ""),
      optIff(form, ""),
      optUnion(form, ""),
      optIntersection(form, ""),
      optEqual(form, ""),
      optLessThan(form, ""),
      optGreaterThan(form, ""),
      optLessThanOrEqual(form, ""),
      optGreaterThanOrEqual(form, ""),
      optAdd(form, ""),
      optSubtract(form, ""),
      optMultiply(form, ""),
      optDivide(form, ""),
      optExponent(form, ""),
      optNegative(form, ""),
      optALL(form, ""),
      optExist(form, ""),
      optSum(form, ""),
      optProd(form, ""),
      optelement(form, ""),
      optComplement(form, "") {
    for (const EditRow& row : EditItems) Name(this->*row.item, mnuEdit, row.name, row.caption);
    for (const PaletteRow& row : Palette) {
        Name(this->*row.item, mnuNotation, row.name, row.caption);
    }
    Name(optelement, mnuNotation, "optelement", "Element of                      @");
    Name(optComplement, mnuNotation, "optComplement", "Set Complement              ` (left quote)");
    form.MenuBar = {&mnuEdit, &mnuNotation};
}

// --- the editor

ExpressionEditor::ExpressionEditor(RichTextBox& box, EditorMenus& menus, Timer& timer)
    : box_(box), menus_(menus), timer_(timer) {
    for (const PaletteRow& row : Palette) {
        (menus.*row.item).Click = [this, &row] {
            RunHandler([&] { Insert(row.text, row.caretMove); });
        };
    }
    const auto bind = [this](MenuItem& item, void (ExpressionEditor::*command)()) {
        item.Click = [this, command] { RunHandler([&] { (this->*command)(); }); };
    };
    bind(menus.optelement, &ExpressionEditor::InsertElementSign);
    // The character itself is typed: the item only shows it.
    bind(menus.optComplement, &ExpressionEditor::DisableUndo);
    bind(menus.optUndo, &ExpressionEditor::Undo);
    bind(menus.optRedo, &ExpressionEditor::Redo);
    bind(menus.optCut, &ExpressionEditor::Cut);
    bind(menus.optDelete, &ExpressionEditor::Delete);
    bind(menus.optClear, &ExpressionEditor::Clear);
    menus.optCopy.Click = [this] { RunHandler([&] { Copy(box_); }); };
    menus.optPaste.Click = [this] {
        RunHandler([&] {
            Paste(box_);
            SetUndoEnabled(true, false);
        });
    };
    box.KeyDown = [this](const KeyEvent& key) { return KeyDown(key); };
    box.MouseMove = [this] { extension_.MouseMoved(box_, timer_); };
    box.MouseUp = [this](MouseButton button) {
        extension_.ButtonUp(timer_);
        if (button == MouseButton::Right) PopupMenu(menus_.mnuEdit);
    };
    timer.Tick = [this] { extension_.Tick(box_, timer_); };
}

void ExpressionEditor::BindButton(Button& button, MenuItem& twin) {
    button.Click = twin.Click;
    if (&twin == &menus_.optUndo) undoButtons_.push_back(&button);
    if (&twin == &menus_.optRedo) redoButtons_.push_back(&button);
}

void ExpressionEditor::SetUndoEnabled(bool undo, bool redo) {
    menus_.optUndo.Enabled = undo;
    menus_.optRedo.Enabled = redo;
    for (Button* button : undoButtons_) button->Enabled = undo;
    for (Button* button : redoButtons_) button->Enabled = redo;
}

void ExpressionEditor::DisableUndo() {
    SetUndoEnabled(false, false);
}

void ExpressionEditor::Start() {
    box_.TextRTF = "";
    box_.SelFontName = StatementFont;
    box_.SelColor = Black;
    box_.SelBold = false;
    box_.SelFontSize = StmtFontSize;
    box_.SetFocus();
    DisableUndo();
}

std::string ExpressionEditor::Expression() {
    std::string text = ConvertEpsilon(box_);
    while (text.starts_with("\r\n")) text.erase(0, 2);
    while (text.ends_with("\r\n")) text.erase(text.size() - 2);
    return text;
}

void ExpressionEditor::ClearMarks() {
    box_.SelStart = 0;
    box_.SelLength = box_.TextLength();
    box_.SelColor = Black;
    box_.SelBold = false;
}

void ExpressionEditor::MarkParseError() {
    if (ParseErrorPos <= 0) return;
    TokenList tokens;
    std::string lexError;
    int lexErrorPos = 0;
    Lex(NewStmtText, tokens, lexError, lexErrorPos);
    const auto token =
        std::find_if(tokens.begin() + 1, tokens.end(),
                     [](const TokenRec& rec) { return rec.Position == ParseErrorPos; });
    if (token != tokens.end()) {
        box_.SelStart = ParseErrorPos - 1;
        box_.SelLength = static_cast<int>(token->Token.size());
        box_.SelColor = ErrorRed;
    }
    box_.SelStart = ParseErrorPos - 1;
}

void ExpressionEditor::Insert(const std::string& text, int caretMove) {
    box_.SelText = "";
    const int caret = box_.SelStart;
    box_.SelFontName = StatementFont;
    box_.SelText = text;
    box_.SelStart = caret + caretMove;
    box_.SetFocus();
    DisableUndo();
}

void ExpressionEditor::InsertElementSign() {
    box_.SelText = "";
    box_.SelFontName = SymbolFont;
    box_.SelText = "e";
    box_.SelFontName = StatementFont;
    box_.SetFocus();
    DisableUndo();
}

void ExpressionEditor::SaveForUndo() {
    BoxUndoText = box_.TextRTF;
    SetUndoEnabled(true, false);
}

void ExpressionEditor::Undo() {
    boxRedoText_ = box_.TextRTF;
    box_.TextRTF = BoxUndoText;
    box_.SelStart = box_.TextLength();
    SetUndoEnabled(false, true);
    box_.SetFocus();
}

void ExpressionEditor::Redo() {
    box_.TextRTF = boxRedoText_;
    box_.SelStart = box_.TextLength();
    SetUndoEnabled(true, false);
    box_.SetFocus();
}

void ExpressionEditor::Cut() {
    if (box_.SelLength > 0) Copy(box_);
    Delete();
}

void ExpressionEditor::Delete() {
    box_.SetFocus();
    if (box_.SelLength == 0) return Beep("Nothing is selected: select the text to remove first.");
    SaveForUndo();
    box_.SelText = "";
}

void ExpressionEditor::Clear() {
    SaveForUndo();
    box_.TextRTF = "";
    box_.SetFocus();
}

bool ExpressionEditor::ControlKey(const std::string& letter) {
    const std::pair<const char*, MenuItem*> keys[] = {
        {"A", &menus_.optALL},  {"E", &menus_.optExist}, {"X", &menus_.optCut},
        {"C", &menus_.optCopy}, {"V", &menus_.optPaste}, {"Z", &menus_.optUndo},
        {"S", &menus_.optSum},  {"P", &menus_.optProd}};
    for (const auto& [key, item] : keys) {
        if (letter == key && item->Enabled) item->Click();
    }
    return true;  // any other one is swallowed
}

bool ExpressionEditor::KeyDown(const KeyEvent& key) {
    switch (key.key) {
        case Key::Char:
            if (key.ctrl) return ControlKey(key.text);
            if (key.text == "@") {
                InsertElementSign();
                return true;
            }
            break;
        case Key::Del:
            SaveForUndo();
            return false;
        case Key::Enter:
        case Key::Backspace:
            break;
        default:
            return false;
    }
    DisableUndo();
    // What is typed beside an element sign must not take its font.
    if (key.key != Key::Backspace) {
        if (box_.SelLength > 0) box_.SelText = "";
        box_.SelFontName = StatementFont;
    }
    return false;
}

}  // namespace tessaryn

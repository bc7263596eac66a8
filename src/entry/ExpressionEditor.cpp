#include "entry/ExpressionEditor.h"

#include <algorithm>
#include <utility>

#include "expr/Lex.h"
#include "mainwindow/Proof.h"
#include "platform/Platform.h"
#include "view/Display.h"
#include "view/TextExchange.h"

namespace tessaryn {
namespace {

constexpr Colour ErrorRed = Rgb(255, 0, 0);

struct PaletteRow {
    PaletteEntry entry;
    const char* caption;
};

using M = EditorMenus;

const PaletteRow StandardPalette[] = {
    {{&M::optAnd, "optAnd", "&"}, "And                               &&"},
    {{&M::optOr, "optOr", "|"}, "Or                                  |"},
    {{&M::optNot, "optNot", "~"}, "Not                                ~"},
    {{&M::optImplies, "optImplies", "=>"}, "Implies                           =>"},
    {{&M::optIff, "optIff", "<=>"}, "If and only if                   <=>"},
    {{&M::optALL, "optALL", "ALL():"}, "Universal Quantifier       ALL([var]):           Ctrl+A"},
    {{&M::optExist, "optExist", "EXIST():"},
     "Existential Quantifier     EXIST([var]):       Ctrl+E"},
    {{&M::optUnion, "optUnion", "||"}, "Union                             ||"},
    {{&M::optIntersection, "optIntersection", "&&"}, "Intersection                    &&&&"},
    {{&M::optEqual, "optEqual", "="}, "Equal                             ="},
    {{&M::optLessThan, "optLessThan", "<"}, "Less than                       <"},
    {{&M::optGreaterThan, "optGreaterThan", ">"}, "Greater than                  >"},
    {{&M::optLessThanOrEqual, "optLessThanOrEqual", "<="}, "Less than or equal         <="},
    {{&M::optGreaterThanOrEqual, "optGreaterThanOrEqual", ">="}, "Greater than or equal    >="},
    {{&M::optAdd, "optAdd", "+"}, "Add                                +"},
    {{&M::optSubtract, "optSubtract", "-"}, "Subtract                         -"},
    {{&M::optMultiply, "optMultiply", "*"}, "Multiply                          *"},
    {{&M::optDivide, "optDivide", "/"}, "Divide                            /"},
    {{&M::optExponent, "optExponent", "^"}, "Exponent                       ^"},
    {{&M::optNegative, "optNegative", "_"}, "Negative                        _"},
    {{&M::optSum, "optSum", "SUM(,,):"}, "Summation  SUM([var],[start],[end]):         Ctrl+S"},
    {{&M::optProd, "optProd", "PROD(,,):"},
     "Product       PROD([var],[start],[end]):       Ctrl+P"},
    {{&M::optelement, "optelement", "@"}, "Element of                      @"},
    {{&M::optComplement, "optComplement", ""}, "Set Complement              ` (left quote)"},
};

struct EditRow {
    MenuItem EditMenu::*item;
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

const PaletteEntry& EntryFor(const PaletteEntry& standard, std::span<const PaletteEntry> changes) {
    const auto change =
        std::find_if(changes.begin(), changes.end(),
                     [&](const PaletteEntry& entry) { return entry.item == standard.item; });
    return change == changes.end() ? standard : *change;
}

}  // namespace

void InsertElementSign(RichTextBox& box) {
    box.SelText = "";
    box.SelFontName = SymbolFont;
    box.SelText = "e";
    box.SelFontName = StatementFont;
}

// --- selection extension

void SelectionExtension::MouseMoved(RichTextBox& box, Timer& timer) {
    if (!PointerBeyondRightEdge(box)) {
        ButtonUp(timer);
    } else if (!ExtendDone) {
        timer.Enabled = true;
    }
}

void SelectionExtension::Tick(RichTextBox& box, Timer& timer) {
    const int end = box.SelStart + box.SelLength;
    if (end == 0) return;
    const std::string& text = box.GetText();
    const auto last = static_cast<std::size_t>(end) - 1;
    if (last + 1 >= text.size() || text[last] == '\n') {
        ExtendDone = true;
        timer.Enabled = false;
    } else {
        box.SelLength = box.SelLength + 1;
    }
}

void SelectionExtension::ButtonUp(Timer& timer) {
    timer.Enabled = false;
    ExtendDone = false;
}

// --- menus

EditMenu::EditMenu(Form& form)
    : mnuEdit(form, "mnuEdit", "Edit"),
      optUndo(form, ""),
      optRedo(form, ""),
      optCut(form, ""),
      optCopy(form, ""),
      optPaste(form, ""),
      optDelete(form, ""),
      optClear(form, ""),
      ControlKeys{{"X", &optCut}, {"C", &optCopy}, {"V", &optPaste}, {"Z", &optUndo}} {
    for (const EditRow& row : EditItems) Name(this->*row.item, mnuEdit, row.name, row.caption);
    form.MenuBar = {&mnuEdit};
}

EditButtons::EditButtons(Form& form, const char* nameOfUndo)
    : Undo(form, nameOfUndo, "Undo"),
      Redo(form, "cmdRedo", "Redo"),
      Cut(form, "cmdCut", "Cut"),
      Copy(form, "cmdCopy", "Copy"),
      Paste(form, "cmdPaste", "Paste"),
      Delete(form, "cmdDelete", "Delete"),
      Clear(form, "cmdClear", "Clear") {}

EditorMenus::EditorMenus(Form& form, std::span<const PaletteEntry> changes)
    : EditMenu(form),
      mnuNotation(form, "mnuNotation", "Notation"),
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
    for (const PaletteRow& row : StandardPalette) {
        const PaletteEntry& entry = EntryFor(row.entry, changes);
        Name(this->*entry.item, mnuNotation, entry.name, row.caption);
        Palette.push_back({&(this->*entry.item), entry.text});
    }
    ControlKeys.insert(ControlKeys.end(),
                       {{"A", &optALL}, {"E", &optExist}, {"S", &optSum}, {"P", &optProd}});
    form.MenuBar.push_back(&mnuNotation);
}

// --- the editor

ExpressionEditor::ExpressionEditor(RichTextBox& box, EditMenu& menus, Timer& timer,
                                   EditorStyle style)
    : box_(box), menus_(menus), timer_(timer), style_(style) {
    for (const auto& [item, text] : menus.Palette) {
        item->Click = [this, text = std::string(text)] { RunHandler([&] { Insert(text); }); };
    }
    const auto bind = [this](MenuItem& item, void (ExpressionEditor::*command)()) {
        item.Click = [this, command] { RunHandler([&] { (this->*command)(); }); };
    };
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
    box.Pasted = [this](const Clip& content) {
        RunHandler([&] {
            PutIn(box_, content);
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

void ExpressionEditor::BindButtons(EditButtons& buttons) {
    buttons_ = &buttons;
    buttons.Undo.Click = menus_.optUndo.Click;
    buttons.Redo.Click = menus_.optRedo.Click;
    buttons.Cut.Click = menus_.optCut.Click;
    buttons.Copy.Click = menus_.optCopy.Click;
    buttons.Paste.Click = menus_.optPaste.Click;
    buttons.Delete.Click = menus_.optDelete.Click;
    buttons.Clear.Click = menus_.optClear.Click;
}

void ExpressionEditor::BindInsertion(Button& button, const std::string& text) {
    button.Click = [this, text] { RunHandler([&] { Insert(text); }); };
}

void ExpressionEditor::SetUndoEnabled(bool undo, bool redo) {
    menus_.optUndo.Enabled = undo;
    menus_.optRedo.Enabled = redo;
    if (buttons_ == nullptr) return;
    buttons_->Undo.Enabled = undo;
    buttons_->Redo.Enabled = redo;
}

void ExpressionEditor::DisableUndo() {
    SetUndoEnabled(false, false);
}

void ExpressionEditor::Start() {
    extension_.ButtonUp(timer_);  // the last use may have ended in the middle of a drag
    Empty();
    box_.SetFocus();
    DisableUndo();
}

// What is typed next must not take the look of what was there.
void ExpressionEditor::Empty() {
    box_.TextRTF = "";
    box_.SelFontName = StatementFont;
    box_.SelColor = style_.colour;
    box_.SelBold = false;
    box_.SelFontSize = StmtFontSize;
}

std::string ExpressionEditor::WholeExpression() {
    return ConvertEpsilon(box_);
}

std::string ExpressionEditor::Expression() {
    std::string text = WholeExpression();
    while (text.starts_with("\r\n")) text.erase(0, 2);
    while (text.ends_with("\r\n")) text.erase(text.size() - 2);
    return text;
}

void ExpressionEditor::ClearMarks() {
    box_.SelStart = 0;
    box_.SelLength = box_.TextLength();
    box_.SelColor = style_.colour;
    box_.SelBold = false;
}

void ExpressionEditor::MarkParseError() {
    if (ParseErrorPos <= 0) return;
    TokenList tokens = LexExpression(NewStmtText).tokens;
    // Line breaks ahead of the expression stand in the box only.
    const int ahead = static_cast<int>(WholeExpression().find(NewStmtText));
    const auto token = std::find_if(tokens.begin() + 1, tokens.end(), [](const TokenRec& rec) {
        return rec.Position == ParseErrorPos;
    });
    if (token != tokens.end()) {
        token->Position += ahead;
        MarkRed(*token);
    }
    box_.SelStart = ahead + ParseErrorPos - 1;
}

void ExpressionEditor::MarkName(const std::string& name) {
    const auto token = std::find_if(TokenTable.begin() + 1, TokenTable.end(),
                                    [&](const TokenRec& rec) { return rec.Token == name; });
    if (token != TokenTable.end()) MarkRed(*token);
}

void ExpressionEditor::MarkRed(const TokenRec& token) {
    box_.SelStart = token.Position - 1;
    box_.SelLength = static_cast<int>(token.Token.size());
    box_.SelColor = ErrorRed;
    box_.SelStart = token.Position - 1;
}

void ExpressionEditor::SetTypingFormat() {
    box_.SelFontName = StatementFont;
    if (!style_.typesInColour) return;
    box_.SelColor = style_.colour;
    box_.SelBold = false;
}

void ExpressionEditor::Insert(const std::string& text) {
    style_.undoesInsertions ? SaveForUndo() : DisableUndo();
    if (text.empty()) return;
    box_.SetFocus();
    if (text == "@") return InsertElementSign(box_);
    box_.SelText = "";
    const int caret = box_.SelStart;
    const std::size_t bracket = text.find('(');
    const std::size_t caretMove = bracket == std::string::npos ? text.size() : bracket + 1;
    SetTypingFormat();
    box_.SelText = text;
    box_.SelStart = caret + static_cast<int>(caretMove);
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
    Empty();
    box_.SetFocus();
}

bool ExpressionEditor::ControlKey(const std::string& letter) {
    for (const auto& [key, item] : menus_.ControlKeys) {
        if (letter == key && item->Enabled) item->Click();
    }
    return true;  // any other one is swallowed
}

void ExpressionEditor::TypeElementSign() {
    DisableUndo();
    box_.SetFocus();
    box_.SelText = "";
    SetTypingFormat();
    InsertElementSign(box_);
    const int caret = box_.SelStart;
    box_.SelText = style_.behindElementSign;
    if (caret == box_.SelStart) return;
    box_.SelStart = caret;
    SetTypingFormat();
}

bool ExpressionEditor::KeyDown(const KeyEvent& key) {
    switch (key.key) {
        case Key::Char:
            if (key.ctrl) return ControlKey(key.text);
            if (WithElementSign(key.text) == "@") {
                TypeElementSign();
                return true;
            }
            break;
        case Key::Insert:
            if (key.ctrl) menus_.optCopy.Click();
            if (key.shift) menus_.optPaste.Click();
            return true;
        case Key::Del:
            if (key.shift) {
                menus_.optCut.Click();
                return true;
            }
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
        SetTypingFormat();
    }
    return false;
}

}  // namespace tessaryn

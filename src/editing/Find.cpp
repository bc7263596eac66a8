#include "editing/Find.h"

#include <algorithm>
#include <numeric>
#include <vector>

#include "document/ActiveLines.h"
#include "entry/ExpressionEditor.h"
#include "mainwindow/Proof.h"
#include "view/Display.h"
#include "view/TextExchange.h"

namespace tessaryn {
namespace {

constexpr int HeadingFontSize = 10;

// Where FindString stands next in the search direction, 1-based in ProofText; 0: nowhere.
int NextPlace() {
    const int length = static_cast<int>(ProofText.size());
    const int wanted = static_cast<int>(FindString.size());
    if (FindString.empty() || FindPos < 1 || FindPos > length) return 0;
    std::size_t place = std::string::npos;
    if (!Find.optBackward.Value) {
        place = ProofText.find(FindString, static_cast<std::size_t>(FindPos - 1));
    } else if (wanted <= FindPos) {
        place = ProofText.rfind(FindString, static_cast<std::size_t>(FindPos - wanted));
    }
    return place == std::string::npos ? 0 : static_cast<int>(place) + 1;
}

// The statements in which a hit counts, ascending.
std::vector<int> SearchedStmts() {
    std::vector<int> lines(static_cast<std::size_t>(StmtCount));
    std::iota(lines.begin(), lines.end(), 1);
    if (Find.ChkActiveOnly.Value) lines = ActiveLines(StmtCount + 1);
    std::erase_if(lines, [](int line) { return !At(line).Visible; });
    return lines;
}

// The one of the statements that holds a place of ProofText; 0 if none does.
int HolderOf(int place, const std::vector<int>& lines) {
    const auto next = std::upper_bound(lines.begin(), lines.end(), place,
                                       [](int at, int line) { return at < At(line).StartLine; });
    if (next == lines.begin()) return 0;
    const int line = *(next - 1);
    return place <= At(line).EndRule ? line : 0;
}

// Selects the next hit in the display and hides the form. False if there is none.
bool SelectNextHit() {
    const std::vector<int> lines = SearchedStmts();
    for (int place = NextPlace(); place > 0; place = NextPlace()) {
        FindPos = Find.optBackward.Value ? place - 1 : place + 1;
        const int line = HolderOf(place, lines);
        if (line == 0) continue;
        Proof.RTB.SelStart = place - ViewOffset(At(line)) - 1;
        Proof.RTB.SelLength = static_cast<int>(FindString.size());
        Find.Hide();
        return true;
    }
    return false;
}

}  // namespace

FindForm::FindForm() : Form("Find", " Find String or Heading") {
    SearchStringTextBox.MultiLine = false;
    SearchStringTextBox.KeyDown = [this](const KeyEvent& key) { return BoxKey(key); };
    optForward.Value = true;
    const auto backToBox = [this] { SearchStringTextBox.SetFocus(); };
    optForward.Click = optBackward.Click = ChkActiveOnly.Click = backToBox;
    optProve.Click = [this] { TakeHeading("Prove:"); };
    optDefine.Click = [this] { TakeHeading("Define:"); };
    optSufficient.Click = [this] { TakeHeading("Sufficient:"); };
    optAsRequired.Click = [this] { TakeHeading("As Required:"); };
    SearchStringTextBox.Pasted = [this](const Clip& content) {
        RunHandler([&] { PutIntoBox(content); });
    };
    cmdPaste.Click = [this] {
        RunHandler([this] {
            const int caret = SearchStringTextBox.SelStart;
            PutIntoBox(ClipboardContent());
            SearchStringTextBox.SelStart = caret;
        });
    };
    cmdCancel.Click = [this] { Hide(); };
    cmdFind.Click = [this] {
        RunHandler([this] { FindFirst(); },
                   [this](const char*) { Refuse("Unable to process search string"); });
    };
    DefaultButton = &cmdFind;
}

void FindForm::Activated() {
    ClearHeadings();
    StatusLine.Caption.clear();
    SearchStringTextBox.TextRTF = "";
    ShowExpression(SearchStringTextBox, TakenIn(PlainSelection(Proof.RTB)), Black);
    SearchStringTextBox.SetFocus();
}

void FindForm::ClearHeadings() {
    optProve.Value = optDefine.Value = optSufficient.Value = optAsRequired.Value = false;
}

void FindForm::TakeHeading(const std::string& heading) {
    const int length = static_cast<int>(heading.size());
    SearchStringTextBox.SetContent(heading,
                                   {{0, length, {StatementFont, HeadingFontSize, Black, false}}});
    SearchStringTextBox.SelStart = 0;
    SearchStringTextBox.SetFocus();
    StatusLine.Caption.clear();
}

bool FindForm::BoxKey(const KeyEvent& key) {
    const bool types = key.key == Key::Char || key.key == Key::Enter || key.key == Key::Backspace;
    if (!types && key.key != Key::Del) return false;
    ClearHeadings();
    StatusLine.Caption.clear();
    if (!types || key.key == Key::Backspace) return false;
    if (key.key == Key::Enter) {
        cmdFind.Click();
        return true;
    }
    if (key.ctrl) return true;
    RichTextBox& box = SearchStringTextBox;
    if (box.SelLength > 0) box.SelText = "";
    box.SelFontName = StatementFont;
    box.SelFontSize = StmtFontSize;
    box.SelColor = Black;
    box.SelBold = false;
    if (WithElementSign(key.text) != "@") return false;
    InsertElementSign(box);
    return true;
}

void FindForm::PutIntoBox(const Clip& content) {
    LoadWorkArea(content);
    SearchStringTextBox.SelRTF = WorkArea.RTB.TextRTF;
    SearchStringTextBox.SetFocus();
}

void FindForm::Refuse(const std::string& message) {
    StatusLine.Caption = message;
    Beep(message);
    SearchStringTextBox.SetFocus();
}

// The search begins at the head or the tail of the proof, not at the caret.
void FindForm::FindFirst() {
    FindString = ConvertEpsilon(SearchStringTextBox);
    if (FindString.empty()) return Refuse("No string specified");
    FindPos = optBackward.Value ? static_cast<int>(ProofText.size()) : 1;
    if (NextPlace() == 0) return Refuse("String not found in any statement");
    if (SelectNextHit()) return;
    Refuse(ChkActiveOnly.Value ? "String not found in any active or visible statement"
                               : "String not found in any visible statement");
}

void ShowFind() {
    ShowModeless(Find);
}

void RepeatFind() {
    if (!SelectNextHit()) Beep("There is no further hit.");
}

}  // namespace tessaryn

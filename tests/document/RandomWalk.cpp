#include "document/RandomWalk.h"

#include <algorithm>
#include <utility>

#include "Workbench.h"
#include "cli/HeadlessPlatform.h"
#include "cli/Keyboard.h"
#include "document/ActiveLines.h"
#include "document/Invariants.h"
#include "document/ProofFile.h"
#include "editing/Comment.h"
#include "editing/EditCaption.h"
#include "editing/Find.h"
#include "entry/MyInputBox.h"
#include "entry/TestParser.h"
#include "entry/Warning.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"
#include "mainwindow/RuleModes.h"
#include "platform/Events.h"
#include "view/Display.h"

namespace tessaryn {
namespace {

constexpr const char* const Entries[] = {"P",
                                         "P => Q",
                                         "Q & R & P",
                                         "x=y",
                                         "~x=x",
                                         "P(x) & ~P(x)",
                                         "ALL(a):[a @ s => P(a)]",
                                         "ALL(a):Q(a,y)",
                                         "EXIST(b):f(b)=x",
                                         "LongName(x)\r\n=> AnotherLongName(y) & P"};
constexpr const char* const Comments[] = {"",
                                          "  ",
                                          "One line",
                                          "\r\n\r\nfirst\r\n\r\n\tlast\r\n",
                                          "\t",
                                          "a @ b\t",
                                          "{\\rtf1 \\b}<b>&amp;</b>\r\n1\tP",
                                          "\xC3\xA4\xE2\x82\xAC\r\n\xF0\x9F\x98\x80"};
constexpr const char* const Names[] = {"u", "v", "x", ""};

bool SameContent(const Document& one, const Document& other) {
    return one.ProofCaption == other.ProofCaption && one.ProofText == other.ProofText &&
           std::equal(one.StmtTable.begin(), one.StmtTable.end(), other.StmtTable.begin(),
                      other.StmtTable.end());
}

}  // namespace

RandomNumber RandomNumbers(unsigned seed) {
    return [seed](std::size_t limit) mutable {
        seed = seed * 1664525U + 1013904223U;
        return (seed >> 8) % limit;
    };
}

RandomWalk::RandomWalk(RandomNumber random) : random_(std::move(random)) {
    const std::pair<std::size_t, std::vector<MenuItem*>> frequencies[] = {
        {14, {&Proof.optPremise, &Proof.optJoin}},
        {12, {nullptr}},  // no command: clicks where no rule waits for one
        {12, {&Proof.optConclusion}},
        {8, {&Proof.optSplit, &Proof.optDetachment}},
        {7, {&Proof.optSpec, &Proof.optCopyStatement, &Proof.optUndo}},
        {5, {&Proof.optInsert, &Proof.optRedo}},
        {3, {&Proof.optAxiom, &Proof.DeleteAllRef}},
        {2, {&Proof.optHideDetails, &Proof.optShowDetails, &Proof.optShowLastDetails}},
        {2, {&Proof.optShowAllStmts, &Proof.optToggleHighlight}},
        {2, {&Proof.optFind, &Proof.optRepeatFind}},
        {1, {&Proof.DelAllSubsequent, &Proof.optShowHighlights}},
        {1, {&Proof.optIntro, &Proof.optCaption}},
    };
    for (const auto& [times, items] : frequencies) {
        for (MenuItem* item : items) usual_.insert(usual_.end(), times, item);
    }
    for (Control* control : Proof.Controls) {
        auto* item = dynamic_cast<MenuItem*>(control);
        if (item != nullptr && item->Click && item != &Proof.optExit) all_.push_back(item);
    }
}

void RandomWalk::Step() {
    MenuItem* const command =
        random_(20) == 0 ? all_[random_(all_.size())] : usual_[random_(usual_.size())];
    if (command != nullptr) SendChoose(*command);
    AnswerForms([this] { AnswerForm(); });
    if (Find.Visible) UseFind();
    for (std::size_t clicks = random_(3); clicks > 0; --clicks) ClickSomewhere();
    LookSomewhere();
}

int RandomWalk::Place() {
    return static_cast<int>(random_(Proof.RTB.GetText().size() + 1));
}

void RandomWalk::ClickSomewhere() {
    if (RuleMode == Rule::Join) {
        Headless.Answers.push_back(random_(2) == 0 ? Answer::Yes : Answer::No);
    }
    const int place = Place();
    switch (random_(8)) {
        case 0:
        case 1:
            SendDoubleClick(Proof.RTB, place);
            break;
        case 2:
            SendClick(Proof.RTB, place, static_cast<int>(random_(9)));
            break;
        default:
            SendClick(Proof.RTB, place);
    }
    AnswerForms([this] { AnswerForm(); });
    Headless.Answers.clear();
}

// As a window does, which asks for the formats of the lines in sight.
void RandomWalk::LookSomewhere() {
    const int first = Place();
    Proof.RTB.RunsIn(first, Place());
}

void RandomWalk::UseFind() {
    static const char* const strings[] = {"P", "@", "Premise", "\r\n\t", "no such string"};
    Find.SearchStringTextBox.SetText(strings[random_(std::size(strings))]);
    SendChoose(random_(2) == 0 ? Find.optForward : Find.optBackward);
    if (random_(2) == 0) SendChoose(Find.ChkActiveOnly);
    SendChoose(random_(4) == 0 ? Find.cmdPaste : Find.cmdFind);
    if (random_(2) == 0) SendChoose(Find.cmdCancel);
}

// A few entries and buttons; then it is closed.
void RandomWalk::AnswerAsItComes(Form& form) {
    for (int tries = 0; tries < 4 && form.Visible; ++tries) {
        Control& control = *form.Controls[random_(form.Controls.size())];
        auto* box = dynamic_cast<RichTextBox*>(&control);
        if (dynamic_cast<TextBox*>(&control) != nullptr || (box != nullptr && !box->ReadOnly)) {
            ReplaceByTyping(control, random_(2) == 0 ? Names[random_(std::size(Names))]
                                                     : Entries[random_(std::size(Entries))]);
        } else if (box != nullptr) {
            SendClick(*box, static_cast<int>(random_(box->GetText().size() + 1)));
        } else {
            SendChoose(control);
        }
    }
    form.Close();
    form.Hide();
}

void RandomWalk::AnswerForm() {
    const bool cancel = random_(8) == 0;
    Form& form = TopForm();
    if (&form == &TestParser) {
        TestParser.RTB.SetText(Entries[random_(std::size(Entries))]);
        SendChoose(cancel ? TestParser.cmdCancel : TestParser.cmdContinue);
        if (TestParser.Visible) SendChoose(TestParser.cmdCancel);
    } else if (&form == &MyInputBox) {
        if (RuleMode == Rule::ESpec) MyInputBox.Text1.Text = Names[random_(std::size(Names))];
        SendChoose(cancel ? MyInputBox.Cancel : MyInputBox.Continue);
        if (MyInputBox.Visible) SendChoose(MyInputBox.Cancel);
    } else if (&form == &Comment) {
        Comment.CommentBox.SetText(Comments[random_(std::size(Comments))]);
        SendChoose(cancel ? Comment.Cancel : Comment.Continue);
    } else if (&form == &EditCaption) {
        EditCaption.RTB.SetText(Comments[random_(std::size(Comments))]);
        SendChoose(EditCaption.Continue);
    } else if (&form == &Warning) {
        SendChoose(random_(2) == 0 ? Warning.cmdCancel : Warning.cmdContinue);
    } else {
        AnswerAsItComes(form);
    }
}

std::string BrokenDocumentLaw() {
    std::string fault = CheckDocument();
    if (fault.empty()) fault = CheckDisplay();
    if (!fault.empty()) return fault;
    const std::vector<int> active = ActiveLines(StmtCount + 1);
    for (int line = 1; line <= StmtCount; ++line) {
        const bool listed = std::binary_search(active.begin(), active.end(), line);
        if (listed != IsActive(line, StmtCount + 1)) return "a line is active one way only";
    }
    const std::optional<Document> again = ReadProof(WriteProof());
    if (!again) return "what is saved can't be opened";
    if (!SameContent(*again, Doc)) return "what is saved opens as something else";
    for (const std::string& reason : Headless.Beeps) {
        if (reason.starts_with("Something went wrong inside the program")) return reason;
    }
    return "";
}

}  // namespace tessaryn

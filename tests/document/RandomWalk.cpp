#include "document/RandomWalk.h"

#include <algorithm>
#include <utility>

#include "Workbench.h"
#include "cli/FormState.h"
#include "cli/HeadlessPlatform.h"
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

// The bytes of a text from a place on, as scripts write them: behind them, which place it is of
// those that read so.
std::string PartAt(const std::string& text, std::size_t start, std::size_t length) {
    const std::string part = text.substr(start, length);
    int count = 0;
    for (std::size_t at = text.find(part); at <= start; at = text.find(part, at + 1)) ++count;
    return ' ' + Quoted(part) + ' ' + std::to_string(count);
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

// True if a user could do it.
bool RandomWalk::Do(const std::string& line) {
    try {
        Arguments arguments(line);
        FindScriptAction(arguments.Word())(run_, arguments);
    } catch (const ActionFailed&) {
        return false;
    }
    script_ += line + '\n';
    return true;
}

void RandomWalk::Step() {
    MenuItem* const command =
        random_(20) == 0 ? all_[random_(all_.size())] : usual_[random_(usual_.size())];
    if (command != nullptr) Do("choose " + command->Name);
    AnswerForms([this] { AnswerForm(); });
    if (Find.Visible) UseFind();
    for (std::size_t clicks = random_(3); clicks > 0; --clicks) ClickSomewhere();
    LookSomewhere();
}

void RandomWalk::Restart() {
    StartHeadless();
    script_.clear();
}

std::string RandomWalk::UndoAndRedo() {
    if (!Proof.optUndo.Enabled || ModalFormOpen()) return "";
    const Document before = Doc;
    Do("choose optUndo");
    const Document undone = Doc;
    std::string fault = BrokenDocumentLaw();
    Do("choose optRedo");
    if (!SameContent(Doc, before)) fault = "Redo does not bring back what Undo took";
    if (random_(2) == 0) Do("choose optUndo");
    if (!SameContent(Doc, before) && !SameContent(Doc, undone)) {
        fault = "Undo leads elsewhere the second time";
    }
    return fault;
}

int RandomWalk::Place() {
    return static_cast<int>(random_(Proof.RTB.GetText().size() + 1));
}

void RandomWalk::ClickSomewhere() {
    const std::string beforeIt = script_;
    if (RuleMode == Rule::Join) Do(random_(2) == 0 ? "answer Yes" : "answer No");
    const std::string answer = script_.substr(beforeIt.size());
    std::string click = "click at " + std::to_string(Place());
    const std::size_t kind = random_(8);
    if (kind < 2) click = "double" + click;
    if (kind == 2) click = Selection();
    Do(click);
    if (!Headless.Answers.empty()) {  // nobody has asked
        script_ = beforeIt + script_.substr(beforeIt.size() + answer.size());
        Headless.Answers.clear();
    }
    AnswerForms([this] { AnswerForm(); });
}

// A drag over some of a statement.
std::string RandomWalk::Selection() {
    if (StmtCount == 0) return "";
    const auto line = static_cast<int>(random_(static_cast<std::size_t>(StmtCount))) + 1;
    const std::string text = StmtText(line);
    const std::size_t start = random_(text.size());
    return "select " + std::to_string(line) + PartAt(text, start, 1 + random_(8));
}

// As a user does with a statement to pick from.
std::string RandomWalk::Pick(RichTextBox& box) {
    const std::string text = BoxText(box);
    return text.empty() ? "" : "pick" + PartAt(text, random_(text.size()), 1);
}

// As a window does, which asks for the formats of the lines in sight.
void RandomWalk::LookSomewhere() {
    const int first = Place();
    Proof.RTB.RunsIn(first, Place());
}

void RandomWalk::UseFind() {
    static const char* const strings[] = {"P", "@", "Premise", "\r\n\t", "no such string"};
    Do("set SearchStringTextBox " + Quoted(strings[random_(std::size(strings))]));
    Do(random_(2) == 0 ? "choose optForward" : "choose optBackward");
    if (random_(2) == 0) Do("choose ChkActiveOnly");
    Do(random_(4) == 0 ? "choose cmdPaste" : "choose cmdFind");
    if (random_(2) == 0) Do("choose cmdCancel");
}

// A few entries and buttons; then it is closed.
void RandomWalk::AnswerAsItComes(Form& form) {
    for (int tries = 0; tries < 4 && form.Visible; ++tries) {
        Control& control = *form.Controls[random_(form.Controls.size())];
        auto* box = dynamic_cast<RichTextBox*>(&control);
        if (dynamic_cast<TextBox*>(&control) != nullptr || (box != nullptr && !box->ReadOnly)) {
            Do("set " + control.Name + ' ' +
               Quoted(random_(2) == 0 ? Names[random_(std::size(Names))]
                                      : Entries[random_(std::size(Entries))]));
        } else {
            Do(box != nullptr ? Pick(*box) : "choose " + control.Name);
        }
    }
    if (form.Visible) Do("key Esc");
}

void RandomWalk::AnswerForm() {
    const bool cancel = random_(8) == 0;
    Form& form = TopForm();
    if (&form == &TestParser) {
        Do("set RTB " + Quoted(Entries[random_(std::size(Entries))]));
        Do(cancel ? "choose cmdCancel" : "choose cmdContinue");
        if (TestParser.Visible) Do("choose cmdCancel");
    } else if (&form == &MyInputBox) {
        if (RuleMode == Rule::ESpec) Do("set Text1 " + Quoted(Names[random_(std::size(Names))]));
        Do(cancel ? "choose Cancel" : "choose Continue");
        if (MyInputBox.Visible) Do("choose Cancel");
    } else if (&form == &Comment) {
        Do("set CommentBox " + Quoted(Comments[random_(std::size(Comments))]));
        Do(cancel ? "choose Cancel" : "choose Continue");
    } else if (&form == &EditCaption) {
        Do("set RTB " + Quoted(Comments[random_(std::size(Comments))]));
        Do("choose Continue");
    } else if (&form == &Warning) {
        Do(random_(2) == 0 ? "choose cmdCancel" : "choose cmdContinue");
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

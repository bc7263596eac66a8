#include "desktop/Layouts.h"

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QApplication>
#include <QCheckBox>
#include <QFontMetrics>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QMainWindow>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QToolBar>
#include <QVBoxLayout>
#include <initializer_list>
#include <utility>

#include "axioms/InductionForm.h"
#include "axioms/SubsetFrm.h"
#include "desktop/FormWindow.h"
#include "desktop/Picture.h"
#include "editing/Comment.h"
#include "editing/EditCaption.h"
#include "editing/Find.h"
#include "entry/MyInputBox.h"
#include "entry/TestParser.h"
#include "entry/Warning.h"
#include "mainwindow/Proof.h"
#include "output/AboutTessaryn.h"
#include "output/PrintProof.h"
#include "output/Recovery.h"
#include "output/SaveChanges.h"
#include "output/StartUp.h"
#include "output/Tips.h"
#include "rules/Generalize.h"
#include "rules/Substitution.h"

namespace tessaryn {

namespace {

using Controls = std::initializer_list<const Control*>;

// Room for so many lines, so that a message does not push the controls about.
void ReserveLines(QWidget* label, int lines) {
    label->setMinimumHeight(label->fontMetrics().lineSpacing() * lines + 4);
    if (auto* text = qobject_cast<QLabel*>(label)) text->setAlignment(Qt::AlignLeft | Qt::AlignTop);
}

void Add(QBoxLayout& layout, const FormWindow& window, Controls controls) {
    for (const Control* control : controls) layout.addWidget(window.WidgetOf(*control));
}

QBoxLayout* Row(const FormWindow& window, Controls controls) {
    auto* row = new QHBoxLayout;
    Add(*row, window, controls);
    return row;
}

QBoxLayout* Column(const FormWindow& window, Controls controls) {
    auto* column = new QVBoxLayout;
    Add(*column, window, controls);
    column->addStretch();
    return column;
}

// Buttons that answer a dialogue, at its right edge.
QBoxLayout* Answers(const FormWindow& window, Controls buttons) {
    QBoxLayout* row = Row(window, buttons);
    row->insertStretch(0);
    return row;
}

void AddEditButtons(QBoxLayout& row, const FormWindow& window, const EditButtons& tools) {
    Add(row, window,
        {&tools.Undo, &tools.Redo, &tools.Cut, &tools.Copy, &tools.Paste, &tools.Delete,
         &tools.Clear});
}

// The box of a dialogue, and below it what is wrong with its content.
void AddBox(QBoxLayout& rows, const FormWindow& window, const Control& box, const Label& fault) {
    rows.addWidget(window.WidgetOf(box), 1);
    ReserveLines(window.WidgetOf(fault), 2);
    rows.addWidget(window.WidgetOf(fault));
}

int Columns(const QWidget& widget, int count) {
    return widget.fontMetrics().averageCharWidth() * count;
}

void LayOutProof(ProofForm& form, FormWindow& window, QWidget& inside) {
    auto* main = qobject_cast<QMainWindow*>(&window.Window());
    auto* bar = new QToolBar(QStringLiteral("Tools"), main);
    bar->setMovable(false);
    bar->setContextMenuPolicy(Qt::PreventContextMenu);
    for (const Control* control : form.Controls) {
        if (dynamic_cast<const Button*>(control) == nullptr) continue;
        QWidget* button = window.WidgetOf(*control);
        button->setMinimumWidth(Columns(*button, 8));
        bar->addWidget(button);
        // Groups: files, ways into the proof, undo, rules.
        for (const Control* last :
             {&form.cmdSave, &form.cmdConclusion, &form.cmdRedo, &form.cmdEGen, &form.cmdHelp}) {
            if (control == last) bar->addSeparator();
        }
    }
    main->addToolBar(bar);
    main->setContextMenuPolicy(Qt::NoContextMenu);

    auto* rows = new QVBoxLayout(&inside);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(0);
    rows->addWidget(window.WidgetOf(form.RTB), 1);
    auto* status = new QHBoxLayout;
    status->setContentsMargins(8, 2, 8, 2);
    status->addWidget(window.WidgetOf(form.StatusLine), 1);
    if (auto* label = qobject_cast<QLabel*>(window.WidgetOf(form.InsertLineLabel))) {
        label->setWordWrap(false);
        label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        status->addWidget(label);
    }
    rows->addLayout(status);
}

void LayOutTestParser(TestParserForm& form, FormWindow& window, QWidget& inside) {
    auto* rows = new QVBoxLayout(&inside);
    auto* tools = new QHBoxLayout;
    AddEditButtons(*tools, window, form.Tools);
    Add(*tools, window, {&form.cmdParse});
    tools->addStretch();
    rows->addLayout(tools);
    AddBox(*rows, window, form.RTB, form.StatusLine);
    rows->addLayout(Answers(window, {&form.cmdContinue, &form.cmdCancel}));
    inside.resize(Columns(inside, 100), inside.fontMetrics().lineSpacing() * 20);
}

void LayOutSubsetFrm(SubsetDialogue& form, FormWindow& window, QWidget& inside) {
    auto* rows = new QVBoxLayout(&inside);
    Add(*rows, window,
        {&form.SubsetNameLabel, &form.SubsetName, &form.Label1, &form.BoundVars,
         &form.SelectExpressionLabel});
    auto* tools = new QHBoxLayout;
    AddEditButtons(*tools, window, form.Tools);
    tools->addStretch();
    rows->addLayout(tools);
    AddBox(*rows, window, form.SelectExpression, form.StatusLine);
    rows->addLayout(Answers(window, {&form.cmdContinue, &form.cmdCancel}));
    inside.resize(Columns(inside, 100), inside.fontMetrics().lineSpacing() * 26);
}

void LayOutInductionForm(InductionDialogue& form, FormWindow& window, QWidget& inside) {
    auto* rows = new QVBoxLayout(&inside);
    Add(*rows, window, {&form.BoundVarLabel, &form.BoundVarTextBox, &form.PropertyLabel});
    AddBox(*rows, window, form.RTB, form.StatusLine);
    rows->addLayout(Answers(window, {&form.cmdContinue, &form.cmdReset, &form.cmdCancel}));
    inside.resize(Columns(inside, 100), inside.fontMetrics().lineSpacing() * 22);
}

void LayOutMyInputBox(MyInputBoxForm& form, FormWindow& window, QWidget& inside) {
    auto* rows = new QVBoxLayout(&inside);
    ReserveLines(window.WidgetOf(form.Label2), 2);
    Add(*rows, window, {&form.Label1, &form.Text1, &form.Label2});
    rows->addStretch();
    rows->addLayout(Answers(window, {&form.Continue, &form.Cancel}));
    inside.resize(Columns(inside, 80), rows->sizeHint().height());
}

void LayOutSaveChanges(SaveChangesForm& form, FormWindow& window, QWidget& inside) {
    auto* rows = new QVBoxLayout(&inside);
    Add(*rows, window, {&form.FileName});
    rows->addStretch();
    rows->addLayout(Answers(window, {&form.cmdYes, &form.cmdNo, &form.cmdCancel}));
    inside.resize(Columns(inside, 70), inside.fontMetrics().lineSpacing() * 7);
}

void LayOutRecovery(RecoveryForm& form, FormWindow& window, QWidget& inside) {
    auto* rows = new QVBoxLayout(&inside);
    Add(*rows, window, {&form.Message, &form.FileName});
    rows->addStretch();
    rows->addLayout(Answers(window, {&form.cmdRestore, &form.cmdDiscard, &form.cmdLater}));
    inside.resize(Columns(inside, 70), inside.fontMetrics().lineSpacing() * 8);
}

// A statement with occurrences to pick, below what the rows hold already.
void LayOutOccurrences(OccurrenceForm& form, FormWindow& window, QWidget& inside,
                       QVBoxLayout& rows) {
    Add(rows, window, {&form.StatementTextLabel});
    AddBox(rows, window, form.RTB, form.StatusLine);
    QBoxLayout* buttons =
        Row(window, {&form.cmdSelectAll, &form.cmdReset, &form.cmdContinue, &form.cmdCancel});
    buttons->insertStretch(2);
    rows.addLayout(buttons);
    inside.resize(Columns(inside, 90), inside.fontMetrics().lineSpacing() * 18);
}

// What comes and goes keeps its room, so that the statement under the pointer stays where it is.
void KeepRoom(QWidget* widget) {
    QSizePolicy policy = widget->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    widget->setSizePolicy(policy);
}

void LayOutGeneralize(GeneralizeForm& form, FormWindow& window, QWidget& inside) {
    auto* rows = new QVBoxLayout(&inside);
    window.WidgetOf(form.BoundVarTextBox)->setMaximumWidth(Columns(inside, 24));
    for (const Control* part :
         Controls{&form.BoundVarLabel, &form.BoundVarTextBox, &form.StatementTextLabel}) {
        KeepRoom(window.WidgetOf(*part));
    }
    QBoxLayout* row = Row(window, {&form.BoundVarLabel, &form.BoundVarTextBox});
    row->addStretch();
    rows->addLayout(row);
    LayOutOccurrences(form, window, inside, *rows);
}

void LayOutSubstitution(SubstitutionForm& form, FormWindow& window, QWidget& inside) {
    LayOutOccurrences(form, window, inside, *new QVBoxLayout(&inside));
}

// The picture, and beside it the program's name and what else there is to tell.
QBoxLayout* LayOutGreeting(const FormWindow& window, QWidget& inside, const Label& programName,
                           Controls told) {
    auto* columns = new QHBoxLayout(&inside);
    auto* picture = new QLabel(&inside);
    picture->setPixmap(ProgramPicture(192));
    columns->addWidget(picture);
    columns->addSpacing(16);
    auto* rows = new QVBoxLayout;
    columns->addLayout(rows, 1);
    rows->addStretch();
    if (auto* name = qobject_cast<QLabel*>(window.WidgetOf(programName))) {
        QFont large = name->font();
        large.setPointSizeF(large.pointSizeF() * 2);
        name->setFont(large);
        name->setWordWrap(false);
        rows->addWidget(name);
    }
    Add(*rows, window, told);
    rows->addStretch();
    inside.resize(Columns(inside, 80), 220);
    return rows;
}

void LayOutStartUp(StartUpForm& form, FormWindow& window, QWidget& inside) {
    LayOutGreeting(window, inside, form.ProgramName, {&form.BuildDate});
}

void LayOutAbout(AboutTessarynForm& form, FormWindow& window, QWidget& inside) {
    QBoxLayout* rows = LayOutGreeting(window, inside, form.ProgramName, {&form.Purpose});
    rows->addLayout(Answers(window, {&form.cmdOK}));
}

void LayOutTips(TipsForm& form, FormWindow& window, QWidget& inside) {
    auto* rows = new QVBoxLayout(&inside);
    ReserveLines(window.WidgetOf(form.TipText), 6);
    rows->addWidget(window.WidgetOf(form.TipText), 1);
    QBoxLayout* answers = Row(window, {&form.Check1, &form.cmdClose});
    answers->insertStretch(1);
    rows->addLayout(answers);
    inside.resize(Columns(inside, 64), inside.fontMetrics().lineSpacing() * 11);
}

void LayOutPrintProof(PrintProofForm& form, FormWindow& window, QWidget& inside) {
    auto* rows = new QVBoxLayout(&inside);
    Add(*rows, window, {&form.ChkAllStmts});
    auto* range = new QFormLayout;
    for (const auto& [label, box] :
         {std::pair(&form.Label1, &form.Text1), std::pair(&form.Label2, &form.Text2)}) {
        window.WidgetOf(*box)->setMaximumWidth(Columns(inside, 16));
        range->addRow(window.WidgetOf(*label), window.WidgetOf(*box));
    }
    rows->addLayout(range);
    ReserveLines(window.WidgetOf(form.StatusLine), 1);
    Add(*rows, window, {&form.StatusLine});
    rows->addStretch();
    rows->addLayout(Answers(window, {&form.cmdContinue, &form.cmdCancel}));
    inside.resize(Columns(inside, 60), rows->sizeHint().height());
}

void LayOutComment(CommentForm& form, FormWindow& window, QWidget& inside) {
    auto* rows = new QVBoxLayout(&inside);
    QBoxLayout* tools =
        Row(window, {&form.cmdProve, &form.cmdDefine, &form.cmdSufficient, &form.cmdAsRequired});
    tools->addStretch();
    AddEditButtons(*tools, window, form.Tools);
    for (int place = 0; place < tools->count(); ++place) {
        if (QWidget* button = tools->itemAt(place)->widget()) {
            button->setMinimumWidth(Columns(*button, 8));
        }
    }
    rows->addLayout(tools);
    rows->addWidget(window.WidgetOf(form.CommentBox), 1);
    QBoxLayout* answers = Row(window, {&form.Continue, &form.Cancel});
    answers->insertStretch(1);
    rows->addLayout(answers);
    inside.resize(Columns(inside, 110), inside.fontMetrics().lineSpacing() * 24);
}

void LayOutEditCaption(EditCaptionForm& form, FormWindow& window, QWidget& inside) {
    auto* rows = new QVBoxLayout(&inside);
    Add(*rows, window, {&form.RTB});
    rows->addStretch();
    rows->addLayout(Answers(window, {&form.Clear, &form.Continue, &form.Cancel}));
    inside.resize(Columns(inside, 90), rows->sizeHint().height());
}

void LayOutFind(FindForm& form, FormWindow& window, QWidget& inside) {
    auto* rows = new QVBoxLayout(&inside);
    Add(*rows, window, {&form.SearchStringLabel, &form.SearchStringTextBox});
    auto* choices = new QHBoxLayout;
    choices->addLayout(Column(window, {&form.SearchDirectionLabel, &form.optForward,
                                       &form.optBackward, &form.ChkActiveOnly}),
                       1);
    choices->addLayout(Column(window, {&form.HeadingLabel, &form.optProve, &form.optDefine,
                                       &form.optSufficient, &form.optAsRequired}),
                       1);
    rows->addLayout(choices);
    ReserveLines(window.WidgetOf(form.StatusLine), 1);
    Add(*rows, window, {&form.StatusLine});
    rows->addLayout(Answers(window, {&form.cmdFind, &form.cmdPaste, &form.cmdCancel}));
    inside.resize(Columns(inside, 70), rows->sizeHint().height());
}

void LayOutWarning(WarningForm& form, FormWindow& window, QWidget& inside) {
    auto* rows = new QVBoxLayout(&inside);
    Add(*rows, window, {&form.Message});
    rows->addStretch();
    rows->addLayout(Answers(window, {&form.cmdContinue, &form.cmdCancel}));
    inside.resize(Columns(inside, 70), inside.fontMetrics().lineSpacing() * 7);
}

// Buttons that follow each other share a row; all else has one of its own.
void LayOutAnyForm(FormWindow& window, QWidget& inside) {
    auto* rows = new QVBoxLayout(&inside);
    QBoxLayout* buttons = nullptr;
    bool hasText = false;
    for (const Control* control : window.TheForm().Controls) {
        QWidget* widget = window.WidgetOf(*control);
        if (widget == nullptr) continue;
        if (qobject_cast<QPushButton*>(widget) != nullptr) {
            if (buttons == nullptr) {
                buttons = new QHBoxLayout;
                buttons->addStretch();
                rows->addLayout(buttons);
            }
            buttons->addWidget(widget);
            continue;
        }
        buttons = nullptr;
        const bool text = qobject_cast<QAbstractScrollArea*>(widget) != nullptr;
        hasText = hasText || text;
        rows->addWidget(widget, text ? 1 : 0);
    }
    if (!hasText) rows->addStretch();
    inside.resize(Columns(inside, 90),
                  hasText ? inside.fontMetrics().lineSpacing() * 24 : rows->sizeHint().height());
}

// False if the form is of another type.
template <class SomeForm>
bool LaidOutBy(void (*layOut)(SomeForm&, FormWindow&, QWidget&), FormWindow& window,
               QWidget& inside) {
    auto* form = dynamic_cast<SomeForm*>(&window.TheForm());
    if (form != nullptr) layOut(*form, window, inside);
    return form != nullptr;
}

}  // namespace

void LayOut(FormWindow& window, QWidget& inside) {
    const auto by = [&](auto layOut) { return LaidOutBy(layOut, window, inside); };
    const bool known = by(LayOutProof) || by(LayOutTestParser) || by(LayOutSubsetFrm) ||
                       by(LayOutInductionForm) || by(LayOutMyInputBox) || by(LayOutSaveChanges) ||
                       by(LayOutRecovery) || by(LayOutStartUp) || by(LayOutAbout) ||
                       by(LayOutTips) || by(LayOutPrintProof) || by(LayOutComment) ||
                       by(LayOutEditCaption) || by(LayOutFind) || by(LayOutWarning) ||
                       by(LayOutGeneralize) || by(LayOutSubstitution);
    if (!known) LayOutAnyForm(window, inside);
    // With a large font on a small screen there is more to scroll.
    if (inside.isWindow()) inside.resize(inside.size().boundedTo(RoomOnScreen(inside)));
}

QSize RoomOnScreen(const QWidget& window) {
    constexpr QSize frame(16, 48);  // of most window managers, and some to spare
    return window.screen()->availableSize() - frame;
}

}  // namespace tessaryn

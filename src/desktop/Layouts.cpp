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
#include <QToolBar>
#include <QVBoxLayout>
#include <functional>
#include <initializer_list>
#include <map>
#include <string>

#include "desktop/FormWindow.h"
#include "desktop/Picture.h"

namespace tessaryn {

namespace {

// Room for so many lines, so that a message does not push the controls about.
void ReserveLines(QWidget* label, int lines) {
    if (label == nullptr) return;
    label->setMinimumHeight(label->fontMetrics().lineSpacing() * lines + 4);
    if (auto* text = qobject_cast<QLabel*>(label)) text->setAlignment(Qt::AlignLeft | Qt::AlignTop);
}

void Add(QBoxLayout& layout, QWidget* widget, int stretch = 0) {
    if (widget != nullptr) layout.addWidget(widget, stretch);
}

QBoxLayout* Row(const FormWindow& window, std::initializer_list<const char*> names) {
    auto* row = new QHBoxLayout;
    for (const char* name : names) Add(*row, window.WidgetNamed(name));
    return row;
}

// Buttons that answer a dialogue, at its right edge.
QBoxLayout* Answers(const FormWindow& window, std::initializer_list<const char*> names) {
    QBoxLayout* row = Row(window, names);
    row->insertStretch(0);
    return row;
}

// The tool buttons of the editing commands.
void AddEditButtons(QBoxLayout& row, const FormWindow& window, const char* nameOfUndo = "cmdUndo") {
    for (const char* name :
         {nameOfUndo, "cmdRedo", "cmdCut", "cmdCopy", "cmdPaste", "cmdDelete", "cmdClear"}) {
        Add(row, window.WidgetNamed(name));
    }
}

// The box of a dialogue, and below it what is wrong with its content.
void AddBox(QBoxLayout& rows, const FormWindow& window, const char* box) {
    Add(rows, window.WidgetNamed(box), 1);
    ReserveLines(window.WidgetNamed("StatusLine"), 2);
    Add(rows, window.WidgetNamed("StatusLine"));
}

int Columns(const QWidget& widget, int count) {
    return widget.fontMetrics().averageCharWidth() * count;
}

void LayOutProof(FormWindow& window, QWidget& inside) {
    auto* main = qobject_cast<QMainWindow*>(&window.Window());
    auto* bar = new QToolBar(QStringLiteral("Tools"), main);
    bar->setMovable(false);
    bar->setContextMenuPolicy(Qt::PreventContextMenu);
    const auto& form = window.TheForm();
    for (const Control* control : form.Controls) {
        if (dynamic_cast<const Button*>(control) == nullptr) continue;
        QWidget* button = window.WidgetOf(*control);
        button->setMinimumWidth(Columns(*button, 8));
        bar->addWidget(button);
        // Groups: files, ways into the proof, undo, rules.
        for (const char* last : {"cmdSave", "cmdConclusion", "cmdRedo", "cmdEGen", "cmdHelp"}) {
            if (control->Name == last) bar->addSeparator();
        }
    }
    main->addToolBar(bar);
    main->setContextMenuPolicy(Qt::NoContextMenu);

    auto* rows = new QVBoxLayout(&inside);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(0);
    Add(*rows, window.WidgetNamed("RTB"), 1);
    auto* status = new QHBoxLayout;
    status->setContentsMargins(8, 2, 8, 2);
    Add(*status, window.WidgetNamed("StatusLine"), 1);
    if (auto* label = qobject_cast<QLabel*>(window.WidgetNamed("InsertLineLabel"))) {
        label->setWordWrap(false);
        label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        status->addWidget(label);
    }
    rows->addLayout(status);
}

void LayOutTestParser(FormWindow& window, QWidget& inside) {
    auto* rows = new QVBoxLayout(&inside);
    auto* tools = new QHBoxLayout;
    AddEditButtons(*tools, window, "CmdUndo");
    Add(*tools, window.WidgetNamed("cmdParse"));
    tools->addStretch();
    rows->addLayout(tools);
    AddBox(*rows, window, "RTB");
    rows->addLayout(Answers(window, {"cmdContinue", "cmdCancel"}));
    inside.resize(Columns(inside, 100), inside.fontMetrics().lineSpacing() * 20);
}

void LayOutSubsetFrm(FormWindow& window, QWidget& inside) {
    auto* rows = new QVBoxLayout(&inside);
    for (const char* name : {"SubsetNameLabel", "SubsetName", "Label1", "BoundVars"}) {
        Add(*rows, window.WidgetNamed(name));
    }
    Add(*rows, window.WidgetNamed("SelectExpressionLabel"));
    auto* tools = new QHBoxLayout;
    AddEditButtons(*tools, window);
    tools->addStretch();
    rows->addLayout(tools);
    AddBox(*rows, window, "SelectExpression");
    rows->addLayout(Answers(window, {"cmdContinue", "cmdCancel"}));
    inside.resize(Columns(inside, 100), inside.fontMetrics().lineSpacing() * 26);
}

void LayOutInductionForm(FormWindow& window, QWidget& inside) {
    auto* rows = new QVBoxLayout(&inside);
    for (const char* name : {"BoundVarLabel", "BoundVarTextBox", "PropertyLabel"}) {
        Add(*rows, window.WidgetNamed(name));
    }
    AddBox(*rows, window, "RTB");
    rows->addLayout(Answers(window, {"cmdContinue", "cmdReset", "cmdCancel"}));
    inside.resize(Columns(inside, 100), inside.fontMetrics().lineSpacing() * 22);
}

void LayOutMyInputBox(FormWindow& window, QWidget& inside) {
    auto* rows = new QVBoxLayout(&inside);
    Add(*rows, window.WidgetNamed("Label1"));
    Add(*rows, window.WidgetNamed("Text1"));
    ReserveLines(window.WidgetNamed("Label2"), 2);
    Add(*rows, window.WidgetNamed("Label2"));
    rows->addStretch();
    rows->addLayout(Answers(window, {"Continue", "Cancel"}));
    inside.resize(Columns(inside, 80), rows->sizeHint().height());
}

void LayOutSaveChanges(FormWindow& window, QWidget& inside) {
    auto* rows = new QVBoxLayout(&inside);
    Add(*rows, window.WidgetNamed("FileName"));
    rows->addStretch();
    rows->addLayout(Answers(window, {"cmdYes", "cmdNo", "cmdCancel"}));
    inside.resize(Columns(inside, 70), inside.fontMetrics().lineSpacing() * 7);
}

// What comes and goes keeps its room, so that the statement under the pointer stays where it is.
void KeepRoom(QWidget* widget) {
    if (widget == nullptr) return;
    QSizePolicy policy = widget->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    widget->setSizePolicy(policy);
}

// Generalize and Substitution: a statement with occurrences to pick, in the first with a name to
// enter ahead.
void LayOutOccurrences(FormWindow& window, QWidget& inside) {
    auto* rows = new QVBoxLayout(&inside);
    if (QWidget* name = window.WidgetNamed("BoundVarTextBox"); name != nullptr) {
        name->setMaximumWidth(Columns(inside, 24));
        for (const char* part : {"BoundVarLabel", "BoundVarTextBox", "StatementTextLabel"}) {
            KeepRoom(window.WidgetNamed(part));
        }
        QBoxLayout* row = Row(window, {"BoundVarLabel", "BoundVarTextBox"});
        row->addStretch();
        rows->addLayout(row);
    }
    Add(*rows, window.WidgetNamed("StatementTextLabel"));
    AddBox(*rows, window, "RTB");
    QBoxLayout* buttons = Row(window, {"cmdSelectAll", "cmdReset", "cmdContinue", "cmdCancel"});
    buttons->insertStretch(2);
    rows->addLayout(buttons);
    inside.resize(Columns(inside, 90), inside.fontMetrics().lineSpacing() * 18);
}

// The picture, and what stands beside it.
void LayOutGreeting(FormWindow& window, QWidget& inside) {
    auto* columns = new QHBoxLayout(&inside);
    auto* picture = new QLabel(&inside);
    picture->setPixmap(ProgramPicture(192));
    columns->addWidget(picture);
    columns->addSpacing(16);
    auto* rows = new QVBoxLayout;
    columns->addLayout(rows, 1);
    rows->addStretch();
    if (auto* name = qobject_cast<QLabel*>(window.WidgetNamed("ProgramName"))) {
        QFont large = name->font();
        large.setPointSizeF(large.pointSizeF() * 2);
        name->setFont(large);
        name->setWordWrap(false);
        rows->addWidget(name);
    }
    Add(*rows, window.WidgetNamed("Purpose"));
    Add(*rows, window.WidgetNamed("BuildDate"));
    rows->addStretch();
    rows->addLayout(Answers(window, {"cmdOK"}));
    inside.resize(Columns(inside, 80), 220);
}

void LayOutTips(FormWindow& window, QWidget& inside) {
    auto* rows = new QVBoxLayout(&inside);
    ReserveLines(window.WidgetNamed("TipText"), 6);
    Add(*rows, window.WidgetNamed("TipText"), 1);
    QBoxLayout* answers = Row(window, {"Check1", "cmdClose"});
    answers->insertStretch(1);
    rows->addLayout(answers);
    inside.resize(Columns(inside, 64), inside.fontMetrics().lineSpacing() * 11);
}

void LayOutPrintProof(FormWindow& window, QWidget& inside) {
    auto* rows = new QVBoxLayout(&inside);
    Add(*rows, window.WidgetNamed("ChkAllStmts"));
    auto* range = new QFormLayout;
    for (const auto& [label, box] : {std::pair("Label1", "Text1"), std::pair("Label2", "Text2")}) {
        window.WidgetNamed(box)->setMaximumWidth(Columns(inside, 16));
        range->addRow(window.WidgetNamed(label), window.WidgetNamed(box));
    }
    rows->addLayout(range);
    Add(*rows, window.WidgetNamed("StatusLine"));
    ReserveLines(window.WidgetNamed("StatusLine"), 1);
    rows->addStretch();
    rows->addLayout(Answers(window, {"cmdContinue", "cmdCancel"}));
    inside.resize(Columns(inside, 60), rows->sizeHint().height());
}

void LayOutComment(FormWindow& window, QWidget& inside) {
    auto* rows = new QVBoxLayout(&inside);
    QBoxLayout* tools = Row(window, {"cmdProve", "cmdDefine", "cmdSufficient", "cmdAsRequired"});
    tools->addStretch();
    AddEditButtons(*tools, window);
    for (int place = 0; place < tools->count(); ++place) {
        if (QWidget* button = tools->itemAt(place)->widget()) {
            button->setMinimumWidth(Columns(*button, 8));
        }
    }
    rows->addLayout(tools);
    Add(*rows, window.WidgetNamed("CommentBox"), 1);
    QBoxLayout* answers = Row(window, {"Continue", "Cancel"});
    answers->insertStretch(1);
    rows->addLayout(answers);
    inside.resize(Columns(inside, 110), inside.fontMetrics().lineSpacing() * 24);
}

void LayOutEditCaption(FormWindow& window, QWidget& inside) {
    auto* rows = new QVBoxLayout(&inside);
    Add(*rows, window.WidgetNamed("RTB"));
    rows->addStretch();
    rows->addLayout(Answers(window, {"Clear", "Continue", "Cancel"}));
    inside.resize(Columns(inside, 90), rows->sizeHint().height());
}

QBoxLayout* Column(const FormWindow& window, std::initializer_list<const char*> names) {
    auto* column = new QVBoxLayout;
    for (const char* name : names) Add(*column, window.WidgetNamed(name));
    column->addStretch();
    return column;
}

void LayOutFind(FormWindow& window, QWidget& inside) {
    auto* rows = new QVBoxLayout(&inside);
    Add(*rows, window.WidgetNamed("SearchStringLabel"));
    Add(*rows, window.WidgetNamed("SearchStringTextBox"));
    auto* choices = new QHBoxLayout;
    choices->addLayout(
        Column(window, {"SearchDirectionLabel", "optForward", "optBackward", "ChkActiveOnly"}), 1);
    choices->addLayout(
        Column(window, {"HeadingLabel", "optProve", "optDefine", "optSufficient", "optAsRequired"}),
        1);
    rows->addLayout(choices);
    ReserveLines(window.WidgetNamed("StatusLine"), 1);
    Add(*rows, window.WidgetNamed("StatusLine"));
    rows->addLayout(Answers(window, {"cmdFind", "cmdPaste", "cmdCancel"}));
    inside.resize(Columns(inside, 70), rows->sizeHint().height());
}

void LayOutWarning(FormWindow& window, QWidget& inside) {
    auto* rows = new QVBoxLayout(&inside);
    Add(*rows, window.WidgetNamed("Label"));
    rows->addStretch();
    rows->addLayout(Answers(window, {"cmdContinue", "cmdCancel"}));
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

}  // namespace

void LayOut(FormWindow& window, QWidget& inside) {
    using Layout = void (*)(FormWindow&, QWidget&);
    static const std::map<std::string, Layout> layouts = {
        {"Proof", LayOutProof},
        {"TestParser", LayOutTestParser},
        {"SubsetFrm", LayOutSubsetFrm},
        {"InductionForm", LayOutInductionForm},
        {"MyInputBox", LayOutMyInputBox},
        {"SaveChanges", LayOutSaveChanges},
        {"StartUp", LayOutGreeting},
        {"AboutTessaryn", LayOutGreeting},
        {"Tips", LayOutTips},
        {"PrintProof", LayOutPrintProof},
        {"Comment", LayOutComment},
        {"EditCaption", LayOutEditCaption},
        {"Find", LayOutFind},
        {"Warning", LayOutWarning},
        {"Generalize", LayOutOccurrences},
        {"Substitution", LayOutOccurrences},
    };
    const auto found = layouts.find(window.TheForm().Name);
    (found == layouts.end() ? LayOutAnyForm : *found->second)(window, inside);
}

}  // namespace tessaryn

#include "desktop/Bindings.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QTimer>
#include <QToolButton>

#include "desktop/Announcements.h"
#include "desktop/Desktop.h"
#include "desktop/DirectoryTree.h"
#include "desktop/EditBox.h"
#include "desktop/PaintedText.h"
#include "desktop/ProofDisplay.h"
#include "desktop/ShownText.h"
#include "desktop/SmallBoxes.h"
#include "menu/MainWindow.h"
#include "view/InsertMode.h"
#include "view/NameStatus.h"

namespace tessaryn {

namespace {

template <class Widget>
void SetTextOf(Widget& widget, const std::string& caption) {
    const QString text = ShownText(caption);
    if (widget.text() != text) widget.setText(text);
}

void SyncState(const Control& control, QWidget& widget) {
    if (widget.isHidden() == control.Visible) widget.setVisible(control.Visible);
    if (widget.isEnabledTo(widget.parentWidget()) != control.Enabled) {
        widget.setEnabled(control.Enabled);
    }
}

void OnClick(QAbstractButton& widget, Control& control) {
    QObject::connect(&widget, &QAbstractButton::clicked, &widget,
                     [&control] { Dispatch([&control] { SendChoose(control); }); });
}

// What a person who listens hears a widget called; the toolkit tells them of each setting.
void SetNameOf(QWidget& widget, const QString& name) {
    if (widget.accessibleName() != name) widget.setAccessibleName(name);
}

bool IsBox(const Control* control) {
    return dynamic_cast<const TextBox*>(control) != nullptr ||
           dynamic_cast<const RichTextBox*>(control) != nullptr ||
           dynamic_cast<const DirectoryBox*>(control) != nullptr;
}

// A label stands ahead of the box or the options that it belongs to. nullptr if none does.
const Label* LabelOf(const Control& control) {
    const Label* label = nullptr;
    for (const Control* other : control.Parent.Controls) {
        if (other == &control) break;
        if (IsBox(other)) label = nullptr;
        if (const auto* found = dynamic_cast<const Label*>(other)) label = found;
    }
    return label;
}

// A box has the name of its label or, where it is the one thing in its form, that of the form.
std::function<void()> NamedByLabel(const Control& box, QWidget& widget,
                                   const std::function<void()>& sync) {
    return [&box, &widget, sync, label = LabelOf(box)] {
        SetNameOf(widget, ShownText(label != nullptr ? label->Caption : box.Parent.Caption));
        sync();
    };
}

Binding BindLabel(Label& label, QWidget* parent) {
    auto* widget = new QLabel(parent);
    widget->setTextFormat(Qt::PlainText);
    widget->setWordWrap(true);
    return {&label, widget, {}, [&label, widget] {
                const QString caption = ShownText(label.Caption);
                if (widget->text() == caption) return;
                widget->setText(caption);
                widget->setAccessibleName(caption);
                // What a window comes up with is read with its title.
                if (widget->isActiveWindow()) Announce(caption);
            }};
}

Binding BindButton(Button& button, QWidget* parent, WindowKind kind) {
    QAbstractButton* widget = nullptr;
    if (kind == WindowKind::Main) {
        widget = new QToolButton(parent);
        widget->setFocusPolicy(Qt::TabFocus);
    } else {
        auto* push = new QPushButton(parent);
        push->setAutoDefault(false);  // Enter presses the form's own default button, no other one
        widget = push;
    }
    OnClick(*widget, button);
    return {&button, widget, {}, [&button, widget] {
                SetTextOf(*widget, button.Caption);
                if (widget->toolTip() == ToQt(button.ToolTip)) return;
                widget->setToolTip(ToQt(button.ToolTip));
                widget->setAccessibleDescription(ToQt(button.ToolTip));
            }};
}

// A check box or one of several options: the control has the value, the widget shows it.
template <class Widget, class Choice>
Binding BindChoice(Choice& choice, QWidget* parent) {
    auto* widget = new Widget(parent);
    OnClick(*widget, choice);
    if (const Label* label = LabelOf(choice); label != nullptr && widget->autoExclusive()) {
        widget->setAccessibleDescription(ToQt(label->Caption));
    }
    widget->setAutoExclusive(false);
    return {&choice, widget, {}, [&choice, widget] {
                SetTextOf(*widget, choice.Caption);
                if (widget->isChecked() != choice.Value) widget->setChecked(choice.Value);
            }};
}

Binding BindTextBox(TextBox& box, QWidget* parent) {
    auto* widget = new LineBox(box, parent);
    return {&box, widget, [widget] { widget->Pull(); },
            NamedByLabel(box, *widget, [widget] { widget->Sync(); })};
}

void ZoomByUser(bool larger) {
    Dispatch([larger] { Zoom(larger); });
}

Binding BindSurface(RichTextBox& box, QWidget* parent, WindowKind kind) {
    if (kind == WindowKind::Main && box.MultiLine) {
        auto* widget = new ProofDisplay(box, parent, {ZoomByUser, InsertMarkPlace, NameStatusAt});
        widget->setAccessibleName(QStringLiteral("Proof"));
        return {&box, widget, {}, [widget] { widget->Sync(); }};
    }
    if (box.ReadOnly && !box.MultiLine) {
        auto* widget = new StatusView(box, parent);
        return {&box, widget, {}, [widget] { widget->Sync(); }};
    }
    auto* widget = new EditBox(box, parent);
    return {&box, widget, [widget] { widget->Pull(); },
            NamedByLabel(box, *widget, [widget] { widget->Sync(); })};
}

Binding BindDirectories(DirectoryBox& box, QWidget* parent) {
    auto* widget = new DirectoryTree(box, parent);
    return {&box, widget, {}, NamedByLabel(box, *widget, [widget] { widget->Sync(); })};
}

Binding BindTimer(Timer& timer, QObject* parent) {
    auto* ticker = new QTimer(parent);
    QObject::connect(ticker, &QTimer::timeout, ticker, [&timer] {
        if (timer.Enabled && timer.Tick) Dispatch(timer.Tick);
    });
    return {&timer, nullptr, {}, [&timer, ticker] {
                if (ticker->interval() != timer.Interval) ticker->setInterval(timer.Interval);
                if (timer.Enabled == ticker->isActive()) return;
                if (timer.Enabled) {
                    ticker->start();
                } else {
                    ticker->stop();
                }
            }};
}

Binding BindByKind(Control& control, QWidget* parent, WindowKind kind) {
    if (auto* label = dynamic_cast<Label*>(&control)) return BindLabel(*label, parent);
    if (auto* button = dynamic_cast<Button*>(&control)) return BindButton(*button, parent, kind);
    if (auto* box = dynamic_cast<TextBox*>(&control)) return BindTextBox(*box, parent);
    if (auto* box = dynamic_cast<RichTextBox*>(&control)) return BindSurface(*box, parent, kind);
    if (auto* list = dynamic_cast<DirectoryBox*>(&control)) return BindDirectories(*list, parent);
    if (auto* timer = dynamic_cast<Timer*>(&control)) return BindTimer(*timer, parent);
    if (auto* check = dynamic_cast<CheckBox*>(&control)) {
        return BindChoice<QCheckBox>(*check, parent);
    }
    if (auto* option = dynamic_cast<OptionButton*>(&control)) {
        return BindChoice<QRadioButton>(*option, parent);
    }
    return {&control, nullptr, {}, {}};
}

// Blanks at the end of a caption set off a last column, which here is the one of the shortcuts.
QString ItemText(const MenuItem& item) {
    static const QRegularExpression lastColumn(QStringLiteral("^(.*\\S) {2,}(\\S.*?) *$"));
    QString caption = ShownText(item.Caption);
    if (item.Literal) return caption.replace(QLatin1Char('&'), QStringLiteral("&&"));
    if (!item.Shortcut.empty()) return caption;
    const auto columns = lastColumn.match(caption);
    if (!columns.hasMatch()) return caption;
    return columns.captured(1) + QLatin1Char('\t') + columns.captured(2);
}

// The toolkit's boxes know a second key for Copy.
QList<QKeySequence> ShortcutsOf(const MenuItem& item) {
    QList<QKeySequence> keys{QKeySequence(ToQt(item.Shortcut))};
    if (item.Shortcut == "Ctrl+C") keys.append(QKeySequence(Qt::CTRL | Qt::Key_Insert));
    return keys;
}

}  // namespace

Binding Bind(Control& control, QWidget* parent, WindowKind kind) {
    Binding binding = BindByKind(control, parent, kind);
    if (binding.widget == nullptr) return binding;
    binding.widget->setObjectName(ToQt(control.Name));
    binding.sync = [&control, widget = binding.widget, own = binding.sync] {
        SyncState(control, *widget);
        own();
    };
    return binding;
}

bool IsSeparator(const MenuItem& item) {
    return item.Items.empty() && (item.Caption == "-" || item.Caption.empty());
}

Binding BindItem(MenuItem& item, QAction& action) {
    action.setSeparator(IsSeparator(item));
    if (!item.Shortcut.empty()) action.setShortcuts(ShortcutsOf(item));
    QObject::connect(&action, &QAction::triggered, &action,
                     [&item] { Dispatch([&item] { SendChoose(item); }); });
    return {&item, nullptr, {}, [&item, &action, shown = QString()]() mutable {
                action.setVisible(item.Visible);
                action.setEnabled(item.Enabled);
                // A separator with a text would be painted as a heading, and two in a row both
                // show.
                const QString text = action.isSeparator() ? QString() : ItemText(item);
                if (shown != text) action.setText(shown = text);
                const bool checkable = item.Checkable || item.Checked;
                if (action.isCheckable() != checkable) action.setCheckable(checkable);
                if (action.isChecked() != item.Checked) action.setChecked(item.Checked);
            }};
}

}  // namespace tessaryn

// The manual in a window of its own: a list of its pages, the page, and a search through all.
#include "desktop/HelpViewer.h"

#include <QApplication>
#include <QDesktopServices>
#include <QDialog>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPointer>
#include <QScrollBar>
#include <QShortcut>
#include <QSplitter>
#include <QTextBlock>
#include <QTextBrowser>
#include <QToolBar>
#include <QTreeWidget>
#include <QUrl>
#include <QVBoxLayout>
#include <QWidget>
#include <QWindow>

#include "desktop/DataFolder.h"
#include "desktop/Desktop.h"
#include "desktop/Layouts.h"
#include "desktop/Manual.h"
#include "desktop/Messages.h"
#include "desktop/PaintedText.h"
#include "desktop/ShownText.h"
#include "menu/HelpHere.h"
#include "output/Help.h"
#include "platform/Platform.h"

namespace tessaryn {

namespace {

constexpr QSize NaturalSize(1000, 700);
constexpr int CharactersBesideList = 120;  // a window of fewer shows the page alone
constexpr int StartRole = Qt::UserRole + 1;
constexpr int LengthRole = Qt::UserRole + 2;

QColor LinkColour(const QPalette& palette) {
    const bool dark = palette.color(QPalette::Base).lightness() < 128;
    return dark ? QColor(0x8A, 0xB8, 0xFF) : QColor(0x00, 0x3C, 0xB4);
}

// A page, its pictures no wider than itself.
class PageView : public QTextBrowser {
  public:
    // A bar that came and went would change the width that the pictures have.
    PageView() { setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn); }
    void Fit() {
        const auto margin = static_cast<int>(document()->documentMargin());
        FitPictures(*document(), viewport()->width() - 2 * margin);
    }

  protected:
    void resizeEvent(QResizeEvent* event) override {
        Fit();
        QTextBrowser::resizeEvent(event);
    }
};

class HelpWindow : public QWidget {
  public:
    explicit HelpWindow(const QString& directory) {
        SetTitle(*this, "Tessaryn Manual");
        setFont(TellingFont());
        manual_.pages = ReadPages(directory);
        MakeTools();
        MakeParts();
        ListPages();
        list_.resizeColumnToContents(0);
        const int width = std::min(list_.columnWidth(0) + 30, NaturalSize.width() / 3);
        parts_.setSizes({width, NaturalSize.width() - width});
        connect(&search_, &QLineEdit::textChanged, this, [this] { Search(); });
        connect(&list_, &QTreeWidget::currentItemChanged, this, [this] { GoToItem(); });
        connect(&list_, &QTreeWidget::itemClicked, this, [this] { GoToItem(); });
        connect(&text_, &QTextBrowser::anchorClicked, this, [this](const QUrl& to) { Follow(to); });
        resize(NaturalSize.boundedTo(RoomOnScreen(*this)));
        TakeLook();
        Visit({});
        text_.setFocus();
    }

    // The text size may have changed since the window was opened.
    void TakeSize() {
        if (font() != TellingFont()) setFont(TellingFont());
    }

    // Its file is `name`.md. Without such a page, stays where it is.
    void GoToPage(const QString& name) {
        for (int page = 0; page < static_cast<int>(manual_.pages.size()); ++page) {
            const QString& path = manual_.pages[static_cast<std::size_t>(page)].path;
            if (QFileInfo(path).completeBaseName() == name) Visit({page, 0, 0});
        }
    }

  protected:
    void changeEvent(QEvent* event) override {
        const auto type = event->type();
        if (type == QEvent::FontChange || type == QEvent::PaletteChange) TakeLook();
        QWidget::changeEvent(event);
    }

    void resizeEvent(QResizeEvent*) override { ShowListIfRoom(); }

    void mousePressEvent(QMouseEvent* event) override {
        if (event->button() == Qt::BackButton) back_->trigger();
        if (event->button() == Qt::ForwardButton) forward_->trigger();
    }

    void closeEvent(QCloseEvent*) override {
        // Where no window manager does it, the keyboard would be nobody's.
        if (QWidget* below = TopWindow()) below->activateWindow();
    }

  private:
    // A place in the manual that was visited.
    struct Stop {
        int page = -1;
        int scroll = 0;
    };

    // --- parts of the window

    QAction* AddTool(const char* name, const QList<QKeySequence>& keys, void (HelpWindow::*act)()) {
        QAction* tool = tools_.addAction(QLatin1String(name));
        tool->setShortcuts(keys);
        tool->setToolTip(QStringLiteral("%1 (%2)").arg(
            tool->text(), keys.constFirst().toString(QKeySequence::NativeText)));
        connect(tool, &QAction::triggered, this, act);
        return tool;
    }

    void AddKey(const QKeySequence& keys, void (HelpWindow::*act)()) {
        auto* key = new QShortcut(keys, this);
        key->setAutoRepeat(false);
        connect(key, &QShortcut::activated, this, act);
    }

    void MakeTools() {
        back_ = AddTool("Back", {Qt::ALT | Qt::Key_Left, Qt::Key_Back}, &HelpWindow::GoBack);
        forward_ =
            AddTool("Forward", {Qt::ALT | Qt::Key_Right, Qt::Key_Forward}, &HelpWindow::GoForward);
        tools_.addSeparator();
        search_.setPlaceholderText(QStringLiteral("Search the manual (Ctrl+F)"));
        search_.setAccessibleName(QStringLiteral("Search the manual"));
        search_.setClearButtonEnabled(true);
        tools_.addWidget(&search_);
        tools_.addWidget(&count_);
        previous_ = AddTool("Previous", {Qt::SHIFT | Qt::Key_F3}, &HelpWindow::GoToPreviousHit);
        next_ = AddTool("Next", {Qt::Key_F3}, &HelpWindow::GoToNextHit);
        AddKey(QKeySequence::Find, &HelpWindow::BeginSearch);
        AddKey(Qt::Key_Escape, &HelpWindow::Leave);
        connect(&search_, &QLineEdit::returnPressed, this, &HelpWindow::GoToNextHit);
    }

    void MakeParts() {
        auto* rows = new QVBoxLayout(this);
        rows->setContentsMargins(0, 0, 0, 0);
        rows->setSpacing(0);
        rows->addWidget(&tools_);
        rows->addWidget(&parts_);
        parts_.addWidget(&list_);
        parts_.addWidget(&text_);
        parts_.setStretchFactor(1, 1);
        parts_.setChildrenCollapsible(false);
        list_.setAccessibleName(QStringLiteral("Pages"));
        list_.setHeaderHidden(true);
        list_.setUniformRowHeights(true);
        text_.setAccessibleName(QStringLiteral("Page"));
        text_.setOpenLinks(false);
    }

    // Font and colours of the desktop and the text size, in the texts as well.
    void TakeLook() {
        manual_.font = font();
        manual_.linkColour = LinkColour(palette());
        QPalette colours = palette();
        QColor faint = colours.color(QPalette::Text);
        faint.setAlphaF(0.6F);
        colours.setColor(QPalette::PlaceholderText, faint);  // not every desktop theme has one
        search_.setPalette(colours);
        const int scroll = text_.verticalScrollBar()->value();
        text_.setExtraSelections({});  // which the toolkit looks at once more
        text_.setDocument(nullptr);
        for (ManualPage& page : manual_.pages) page.text.reset();
        if (!stops_.empty()) Show(stops_[here_].page, scroll);
    }

    // A narrow window, beside that of the proof, leaves its room to the page, but for a search.
    void ShowListIfRoom() {
        const int needed = fontMetrics().averageCharWidth() * CharactersBesideList;
        const bool room = width() >= std::min(needed, NaturalSize.width());
        list_.setVisible(room || !search_.text().isEmpty());
    }

    // --- pages and the way through them

    void Visit(const ManualPlace& place) {
        const bool elsewhere = stops_.empty() || stops_[here_].page != place.page;
        if (elsewhere) {
            if (!stops_.empty()) Remember();
            stops_.resize(stops_.empty() ? 0 : here_ + 1);
            stops_.push_back({place.page, 0});
            here_ = stops_.size() - 1;
            Show(place.page, 0);
        }
        QTextCursor cursor(text_.document());
        cursor.setPosition(place.start);
        cursor.setPosition(place.start + place.length, QTextCursor::KeepAnchor);
        text_.setTextCursor(cursor);
        // The beginning of a page at the top, a heading too; a place that was looked for with a
        // few lines ahead of it.
        const int ahead = place.length > 0 ? text_.viewport()->height() / 3 : 0;
        QScrollBar* bar = text_.verticalScrollBar();
        bar->setValue(place.start == 0 ? 0 : bar->value() + text_.cursorRect().top() - ahead);
        TellCount();
    }

    void Show(int page, int scroll) {
        text_.setDocument(&TextOf(manual_, page));
        text_.Fit();
        text_.document()->size();  // lays out the whole, so that all of it can be scrolled to
        text_.verticalScrollBar()->setValue(scroll);
        back_->setEnabled(here_ > 0);
        forward_->setEnabled(here_ + 1 < stops_.size());
        MarkHits();
        SelectInList({page, 0, 0});
    }

    void Remember() { stops_[here_].scroll = text_.verticalScrollBar()->value(); }

    void GoTo(std::size_t stop) {
        Remember();
        here_ = stop;
        Show(stops_[here_].page, stops_[here_].scroll);
        TellCount();
    }
    void GoBack() {
        if (here_ > 0) GoTo(here_ - 1);
    }
    void GoForward() {
        if (here_ + 1 < stops_.size()) GoTo(here_ + 1);
    }

    void Follow(const QUrl& link) {
        if (!link.isRelative() && !link.isLocalFile()) {
            QDesktopServices::openUrl(link);
            return;
        }
        const ManualPlace place = TargetOf(manual_, stops_[here_].page, link);
        if (place.page >= 0) Visit({place.page, std::max(0, place.start), 0});
    }

    // --- the list: all pages or, while something is looked for, where it stands

    QTreeWidgetItem* AddRow(QTreeWidgetItem* above, const QString& text, const ManualPlace& place) {
        auto* row = new QTreeWidgetItem({text});
        row->setToolTip(0, text);
        row->setData(0, Qt::UserRole, place.page);
        row->setData(0, StartRole, place.start);
        row->setData(0, LengthRole, place.length);
        above->addChild(row);
        return row;
    }

    static ManualPlace PlaceOf(const QTreeWidgetItem& row) {
        return {row.data(0, Qt::UserRole).toInt(), row.data(0, StartRole).toInt(),
                row.data(0, LengthRole).toInt()};
    }

    void ListPages() {
        for (int page = 0; page < static_cast<int>(manual_.pages.size()); ++page) {
            AddRow(list_.invisibleRootItem(), manual_.pages[static_cast<std::size_t>(page)].title,
                   {page, 0, 0});
        }
        list_.setRootIsDecorated(false);
    }

    // Below each page a row for each paragraph that has a hit.
    void ListHits() {
        QTreeWidgetItem* page = nullptr;
        int end = 0;  // of the paragraph of the last row
        for (const ManualPlace& hit : hits_) {
            if (page == nullptr || PlaceOf(*page).page != hit.page) {
                const auto& title = manual_.pages[static_cast<std::size_t>(hit.page)].title;
                page = AddRow(list_.invisibleRootItem(), title, hit);
                end = 0;
            }
            if (hit.start < end) continue;
            AddRow(page, Surroundings(manual_, hit), hit);
            const QTextBlock block = TextOf(manual_, hit.page).findBlock(hit.start);
            end = block.position() + block.length();
        }
        list_.setRootIsDecorated(true);
        list_.expandAll();
    }

    // The row of a hit; of a page that is no hit, any of its rows.
    void SelectInList(const ManualPlace& place) {
        const QTreeWidgetItem* current = list_.currentItem();
        if (place.length == 0 && current != nullptr && PlaceOf(*current).page == place.page) return;
        QTreeWidgetItem* found = nullptr;
        for (QTreeWidgetItemIterator row(&list_); *row != nullptr; ++row) {
            const ManualPlace listed = PlaceOf(**row);
            const bool page = (*row)->parent() == nullptr;
            if (listed.page != place.page || (found != nullptr && listed.start > place.start)) {
                continue;
            }
            if (page || place.length > 0) found = *row;
        }
        const QSignalBlocker quiet(list_);
        list_.setCurrentItem(found);
    }

    void GoToItem() {
        if (const QTreeWidgetItem* row = list_.currentItem()) Visit(PlaceOf(*row));
    }

    // --- search

    void BeginSearch() {
        search_.setFocus();
        search_.selectAll();
    }

    void Search() {
        hits_ = FindInManual(manual_, search_.text());
        {
            const QSignalBlocker quiet(list_);
            list_.clear();
            if (search_.text().isEmpty()) {
                ListPages();
            } else {
                ListHits();
            }
        }
        ShowListIfRoom();
        SelectInList({stops_[here_].page, 0, 0});
        MarkHits();
        TellCount();
    }

    void MarkHits() {
        QList<QTextEdit::ExtraSelection> marks;
        for (const ManualPlace& hit : hits_) {
            if (hit.page != stops_[here_].page) continue;
            QTextEdit::ExtraSelection mark;
            mark.cursor = QTextCursor(text_.document());
            mark.cursor.setPosition(hit.start);
            mark.cursor.setPosition(hit.start + hit.length, QTextCursor::KeepAnchor);
            mark.format.setBackground(QColor(0xFF, 0xE9, 0x80));
            mark.format.setForeground(Qt::black);
            marks.append(mark);
        }
        text_.setExtraSelections(marks);
    }

    // Which hit is selected on the page, 0-based; the number of hits if none is.
    std::size_t HitAtHand() const {
        const QTextCursor at = text_.textCursor();
        const auto found = std::find_if(hits_.begin(), hits_.end(), [&](const ManualPlace& hit) {
            return hit.page == stops_[here_].page && hit.start == at.selectionStart() &&
                   hit.start + hit.length == at.selectionEnd();
        });
        return static_cast<std::size_t>(found - hits_.begin());
    }

    void TellCount() {
        const std::size_t count = hits_.size();
        previous_->setEnabled(count > 0);
        next_->setEnabled(count > 0);
        QString told;
        if (!search_.text().isEmpty()) told = QStringLiteral(" Not found ");
        if (count > 0) told = QStringLiteral(" %1 found ").arg(count);
        if (const std::size_t hit = HitAtHand(); hit < count) {
            told = QStringLiteral(" %1 of %2 ").arg(hit + 1).arg(count);
        }
        count_.setText(told);
    }

    void Select(const ManualPlace& hit) {
        Visit(hit);
        SelectInList(hit);
    }

    // Hits of the page come one after the other; behind its last, those of the next page.
    void GoToNextHit() {
        if (hits_.empty()) return;
        const int page = stops_[here_].page;
        const int caret = text_.textCursor().selectionEnd();
        const auto next = std::find_if(hits_.begin(), hits_.end(), [&](const ManualPlace& hit) {
            return hit.page > page || (hit.page == page && hit.start >= caret);
        });
        Select(next == hits_.end() ? hits_.front() : *next);
    }
    void GoToPreviousHit() {
        if (hits_.empty()) return;
        const int page = stops_[here_].page;
        const int caret = text_.textCursor().selectionStart();
        const auto last = std::find_if(hits_.rbegin(), hits_.rend(), [&](const ManualPlace& hit) {
            return hit.page < page || (hit.page == page && hit.start + hit.length <= caret);
        });
        Select(last == hits_.rend() ? hits_.back() : *last);
    }

    // Ends the search, else the reading.
    void Leave() {
        if (search_.text().isEmpty()) {
            close();
            return;
        }
        search_.clear();
        text_.setFocus();
    }

    Manual manual_;
    std::vector<Stop> stops_;
    std::size_t here_ = 0;  // index in stops_
    std::vector<ManualPlace> hits_;
    QAction* back_ = nullptr;
    QAction* forward_ = nullptr;
    QAction* previous_ = nullptr;
    QAction* next_ = nullptr;
    QToolBar tools_;
    QLineEdit search_;
    QLabel count_;
    QSplitter parts_;
    QTreeWidget list_;
    PageView text_;
};

QPointer<HelpWindow>& Window() {
    static QPointer<HelpWindow> window;
    return window;
}

// Does for the boxes that a box of the toolkit opens what was done for the box.
class BoxWatch : public QObject {
  public:
    using QObject::QObject;
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::ChildPolished) {
            auto* child = static_cast<QChildEvent*>(event)->child();
            if (auto* inner = qobject_cast<QDialog*>(child)) LeaveManualUsable(*inner);
        }
        if (event->type() == QEvent::WindowActivate) {
            WindowCameToFront(static_cast<QWidget&>(*parent()));
        }
        return QObject::eventFilter(watched, event);
    }
};

}  // namespace

bool ShowHelpFile(const std::string&, const std::string& page) {
    QPointer<HelpWindow>& window = Window();
    if (!window) {
        const QString directory = ManualFolder();
        if (directory.isEmpty()) return false;
        window = new HelpWindow(directory);
    }
    window->TakeSize();
    window->GoToPage(QString::fromStdString(page));
    window->setWindowState(window->windowState() & ~Qt::WindowMinimized);
    window->show();
    window->raise();
    window->activateWindow();
    return true;
}

void GiveHelp(const Form& form, const Control& focus) {
    Dispatch([&] {
        const Help help = HelpHere(form, &focus);
        const bool wantsMore = NoteShown() == ShownText(help.note);
        if (help.note.empty() || wantsMore) return ShowManual(help.page);
        Tell(help.note);
    });
}

void LeaveManualUsable(QDialog& box, std::string page) {
    box.setWindowModality(Qt::WindowModal);
    // A box that is being shown has a window, which learns of no second thought.
    if (QWindow* shown = box.windowHandle()) shown->setModality(Qt::WindowModal);
    QObject::connect(new QShortcut(Qt::Key_F1, &box), &QShortcut::activated, &box,
                     [page = std::move(page)] {
                         Dispatch([&] { ShowManual(page.empty() ? PageOfPendingRule() : page); });
                     });
    box.installEventFilter(new BoxWatch(&box));
}

void WindowCameToFront(const QWidget& window) {
    QWidget* box = QApplication::activeModalWidget();
    if (box == nullptr) return;
    const HelpWindow* manual = Window();
    if (box != &window) {
        box->activateWindow();
    } else if (manual != nullptr && !manual->frameGeometry().intersects(box->frameGeometry())) {
        Window()->raise();
    }
}

void ForgetManual() {
    delete Window();
}

void OpenWebSite(const std::string& address) {
    QDesktopServices::openUrl(QUrl(ToQt(address)));
}

}  // namespace tessaryn

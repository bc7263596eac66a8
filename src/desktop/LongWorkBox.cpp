#include "desktop/LongWorkBox.h"

#include <QApplication>
#include <QDialog>
#include <QElapsedTimer>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>
#include <utility>

#include "desktop/Desktop.h"
#include "desktop/HelpViewer.h"
#include "desktop/PaintedText.h"
#include "desktop/ShownText.h"
#include "platform/LongWork.h"

namespace tessaryn {

namespace {

constexpr int Slice = 40;      // milliseconds of work between two looks at what the user does
constexpr int Steps = 1000;    // of the bar
constexpr int BoxWidth = 360;  // pixels

// As many pieces as fit into that time, one at least. Gives the share that is done.
double WorkFor(int milliseconds, const LongWork& work) {
    QElapsedTimer clock;
    clock.start();
    double share = work.piece();
    while (share < 1 && !clock.hasExpired(milliseconds)) share = work.piece();
    return share;
}

class LongWorkBox : public QDialog {
  public:
    LongWorkBox(LongWork work, double share, QWidget* parent)
        : QDialog(parent), work_(std::move(work)) {
        setAttribute(Qt::WA_DeleteOnClose);
        setWindowModality(Qt::WindowModal);
        SetTitle(*this, work_.name);
        LeaveManualUsable(*this);
        auto* rows = new QVBoxLayout(this);
        rows->addWidget(new QLabel(ToQt(work_.name)));
        rows->addWidget(&bar_);
        auto* cancel = new QPushButton(QStringLiteral("Cancel"));
        rows->addWidget(cancel, 0, Qt::AlignRight);
        connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
        connect(this, &QDialog::finished, this, [this] {
            timer_.stop();
            Dispatch([this] { work_.then(whole_); });
        });
        setMinimumWidth(BoxWidth);
        bar_.setRange(0, Steps);
        bar_.setAccessibleName(ToQt(work_.name));
        bar_.setValue(static_cast<int>(share * Steps));
        connect(&timer_, &QTimer::timeout, this, [this] { GoOn(); });
        timer_.start(0);
    }

  private:
    void GoOn() {
        const double share = WorkFor(Slice, work_);
        bar_.setValue(static_cast<int>(share * Steps));
        whole_ = share >= 1;
        if (whole_) accept();
    }

    LongWork work_;
    bool whole_ = false;
    QProgressBar bar_;
    QTimer timer_;
};

}  // namespace

void DoInPieces(const LongWork& work) {
    QApplication::setOverrideCursor(Qt::WaitCursor);
    const double share = WorkFor(LongWorkShownAfter, work);
    QApplication::restoreOverrideCursor();
    if (share >= 1) return work.then(true);
    (new LongWorkBox(work, share, TopWindow()))->open();
}

}  // namespace tessaryn

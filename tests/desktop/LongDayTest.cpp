// A long day at the window: whatever the user does there, the document holds together, what is
// painted is what a new window would paint, and memory does not grow from day to day.
//
// packaging/longday makes it as long as wanted.
#include <gtest/gtest.h>
#include <malloc.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QImage>
#include <QPainter>
#include <QPixmapCache>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QThreadPool>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <iostream>

#include "../Wanted.h"
#include "AllForms.h"
#include "RandomUser.h"
#include "UserHands.h"
#include "check/Check.h"
#include "desktop/Desktop.h"
#include "desktop/ProofDisplay.h"
#include "document/Invariants.h"
#include "document/ProofFile.h"
#include "mainwindow/Proof.h"
#include "output/Recovery.h"
#include "view/Display.h"
#include "view/InsertMode.h"

#ifdef __SANITIZE_ADDRESS__
extern "C" std::size_t __sanitizer_get_current_allocated_bytes();  // not all compilers declare it
#endif

using namespace tessaryn;

namespace {

constexpr int ActionsOfADay = 1000;
constexpr int ActionsOfAShortDay = 300;

std::size_t BytesInUse() {
    QPixmapCache::clear();
#ifdef __SANITIZE_ADDRESS__
    return __sanitizer_get_current_allocated_bytes();
#else
    return mallinfo2().uordblks;
#endif
}

// Without the caret, which blinks.
QImage PictureOf(ProofDisplay& display, const QRect& caret) {
    QImage picture = display.viewport()->grab().toImage();
    QPainter(&picture).fillRect(caret, Qt::gray);
    return picture;
}

// What has been painted may be wider than was thought, and is scrolled over then.
void PaintEverything(ProofDisplay& display) {
    QScrollBar* bar = display.verticalScrollBar();
    const int value = bar->value();
    const int page = std::max(1, bar->pageStep());
    for (int place = 0; place < bar->maximum() + page; place += page) {
        bar->setValue(place);
        display.viewport()->grab();
    }
    bar->setValue(value);
}

// "", or how the window differs from one that is built from nothing.
std::string DisplayFault() {
    ProofDisplay& live = ShownProof();
    live.Sync();
    ProofDisplay fresh(Proof.RTB, nullptr, {nullptr, InsertMarkPlace, nullptr});
    fresh.setAttribute(Qt::WA_DontShowOnScreen);
    fresh.resize(live.size());
    fresh.show();
    for (ProofDisplay* display : {&live, &fresh}) {
        PaintEverything(*display);
        QCoreApplication::sendPostedEvents(display, QEvent::MetaCall);  // scroll bars come late
    }
    if (fresh.verticalScrollBar()->maximum() != live.verticalScrollBar()->maximum() ||
        fresh.horizontalScrollBar()->maximum() != live.horizontalScrollBar()->maximum()) {
        return "the display scrolls further than a new one, or less far";
    }
    fresh.verticalScrollBar()->setValue(live.verticalScrollBar()->value());
    fresh.horizontalScrollBar()->setValue(live.horizontalScrollBar()->value());
    // Only now is it settled which of them has the focus.
    QPalette palette = live.palette();
    for (const QPalette::ColorRole role : {QPalette::Highlight, QPalette::HighlightedText}) {
        const auto group = live.hasFocus() ? QPalette::Active : QPalette::Inactive;
        palette.setBrush(QPalette::All, role, palette.brush(group, role));
    }
    fresh.setPalette(palette);
    const QRect caret = live.CaretRect(live.Caret());
    const QImage shown = PictureOf(live, caret);
    const QImage expected = PictureOf(fresh, caret);
    if (shown == expected) return "";
    shown.save(QStringLiteral("longday-shown.png"));
    expected.save(QStringLiteral("longday-expected.png"));
    return "longday-shown.png should be longday-expected.png";
}

std::string BrokenLaw() {
    std::string fault = CheckDocument();
    if (fault.empty()) fault = CheckDisplay();
    if (fault.empty()) fault = check::CheckProof(WriteProof()).sentence;
    if (fault.empty()) fault = DisplayFault();
    return fault;
}

// The program ends as by a power cut, and is started again.
void CutPower(const QString& home) {
    Dispatch(KeepCopy);
    QThreadPool::globalInstance()->waitForDone();
    ForgetCopies();
    EndAtHome();
    StartAtHome(home);
}

// What the user was offered is added to `seen`.
void Day(unsigned seed, int actions, std::set<std::string>& seen) {
    const QTemporaryDir home;
    const std::string kept = "longday-" + std::to_string(seed) + ".log";
    RandomUser user(seed, home.filePath(QStringLiteral("proofs")), kept);
    StartAtHome(home.path());
    std::string fault;
    for (int action = 1; action <= actions && fault.empty(); ++action) {
        user.Act();
        fault = user.Finding();
        if (Ending()) {
            EndAtHome();
            StartAtHome(home.path());
        } else if (action % 100 == 0 && fault.empty()) {
            fault = BrokenLaw();
            if (action % 300 == 0 && QApplication::activeModalWidget() == nullptr) {
                CutPower(home.path());
            }
        }
    }
    user.ComeToRest();
    EndAtHome();
    seen.insert(user.Seen().begin(), user.Seen().end());
    ASSERT_EQ(fault, "") << "What was done is in " << kept << "; to have it done again:\n"
                         << "packaging/longday 0 " << seed;
    std::remove(kept.c_str());
}

}  // namespace

TEST(LongDay, WhateverIsDoneEverythingHoldsTogether) {
    const bool isShort = std::getenv("TESSARYN_LONGDAY") == nullptr;
    const int seconds = Wanted("TESSARYN_LONGDAY", 4);
    auto seed = static_cast<unsigned>(Wanted("TESSARYN_LONGDAY_SEED", 1));
    std::set<std::string> seen;
    // Bytes in use when all has been used once. The toolkit goes on to keep icons, glyphs and
    // names.
    std::size_t before = 0;
    constexpr std::size_t MoreInADay = 100000;
    int days = 0;
    QElapsedTimer clock;
    clock.start();
    do {
        Day(seed++, isShort ? ActionsOfAShortDay : ActionsOfADay, seen);
        if (HasFatalFailure()) return;
        if (++days == 10) before = BytesInUse();
        if (seconds > 60) {
            std::cerr << "day " << days << ", " << BytesInUse() / 1000 << " kB" << std::endl;
        }
    } while (clock.elapsed() < seconds * 1000LL);
    if (days < 200) return;  // what is rare may not have come up yet
    EXPECT_LT(BytesInUse(), before + MoreInADay * static_cast<std::size_t>(days));
    for (const Form* form : AllForms) EXPECT_TRUE(seen.contains(form->Name)) << form->Name;
    for (const Control* control : Proof.Controls) {
        const auto* item = dynamic_cast<const MenuItem*>(control);
        if (item == nullptr || !item->Click || !item->Visible) continue;
        EXPECT_TRUE(seen.contains(item->Name)) << item->Name;
    }
}

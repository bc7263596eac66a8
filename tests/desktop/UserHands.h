// What a user does in the main window, done to its real widgets.
#pragma once

#include <QAction>
#include <QMenu>
#include <QTest>
#include <algorithm>

#include "desktop/Desktop.h"
#include "desktop/FormWindow.h"
#include "desktop/ProofDisplay.h"
#include "document/Document.h"
#include "mainwindow/Proof.h"

namespace tessaryn {

inline ProofDisplay& ShownProof() {
    return *static_cast<ProofDisplay*>(WidgetOf(Proof.RTB));
}

// Where the pointer means the character at a position of the proof's surface.
inline QPoint PlaceInProof(int position) {
    return ShownProof().CaretRect(position).center() + QPoint(4, 0);
}

// The position of an index of ProofText, which lies in a shown statement.
inline int PositionOf(int line, int index) {
    return index - ViewOffset(At(line)) - 1;
}

inline void ClickInProof(int position) {
    QTest::mouseClick(ShownProof().viewport(), Qt::LeftButton, {}, PlaceInProof(position));
}

// The second press of a double click and its release.
inline void DoubleClickInProof(int position) {
    QTest::mouseDClick(ShownProof().viewport(), Qt::LeftButton, {}, PlaceInProof(position));
}

// What stands for an item in the menus of its window; nullptr if it hangs under none.
inline QAction* ActionOf(const MenuItem& item) {
    for (const Control* control : item.Parent.Controls) {
        const auto* title = dynamic_cast<const MenuItem*>(control);
        if (title == nullptr) continue;
        const auto place = std::find(title->Items.begin(), title->Items.end(), &item);
        if (place == title->Items.end()) continue;
        const QMenu* menu = WindowOf(item.Parent).MenuOf(*title);
        return menu->actions().value(place - title->Items.begin());
    }
    return nullptr;
}

}  // namespace tessaryn

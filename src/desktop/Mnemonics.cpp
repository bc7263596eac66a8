#include "desktop/Mnemonics.h"

#include <QKeySequence>

namespace tessaryn {

namespace {

// The caption proper, without the columns for notation and keys.
QString Label(const QString& text) {
    return text.section(QLatin1Char('\t'), 0, 0).section(QStringLiteral("  "), 0, 0);
}

// Where the first letter stands that is not taken: an initial of a word if there is one; -1 if
// there is none.
qsizetype FreeLetter(const QString& label, const QString& taken) {
    qsizetype inside = -1;
    for (qsizetype at = 0; at < label.size(); ++at) {
        if (!label[at].isLetter() || taken.contains(label[at], Qt::CaseInsensitive)) continue;
        if (at == 0 || label[at - 1] == QLatin1Char(' ')) return at;
        if (inside < 0) inside = at;
    }
    return inside;
}

}  // namespace

void AddMnemonics(const QList<QAction*>& items) {
    QString taken;
    for (QAction* item : items) taken += QKeySequence::mnemonic(item->text()).toString().right(1);
    for (QAction* item : items) {
        QString text = item->text();
        if (text.isEmpty() || !QKeySequence::mnemonic(text).isEmpty()) continue;
        qsizetype at = FreeLetter(Label(text), taken);
        // Items may share a letter: pressing it again goes on to the next of them.
        if (at < 0) at = FreeLetter(Label(text), {});
        if (at < 0) continue;
        taken += text[at];
        item->setText(text.insert(at, QLatin1Char('&')));
    }
}

}  // namespace tessaryn

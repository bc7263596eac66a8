#include "desktop/Sheet.h"

#include <QPalette>
#include <QWidget>

namespace tessaryn {

void MakeSheet(QWidget& widget) {
    QPalette colours;  // what is not set here stays the theme's
    colours.setColor(QPalette::Base, Qt::white);
    colours.setColor(QPalette::Text, Qt::black);
    colours.setColor(QPalette::PlaceholderText, Qt::darkGray);
    colours.setColor(QPalette::Highlight, QColor(0x2F, 0x6F, 0xC0));
    colours.setColor(QPalette::HighlightedText, Qt::white);
    colours.setColor(QPalette::Inactive, QPalette::Highlight, QColor(0xC8, 0xD3, 0xE0));
    colours.setColor(QPalette::Inactive, QPalette::HighlightedText, Qt::black);
    widget.setPalette(colours);
}

}  // namespace tessaryn

// The clipboard, with plain text and RTF.
#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

#include "desktop/PaintedText.h"
#include "platform/Platform.h"
#include "text/TextSteps.h"

namespace tessaryn {

namespace {

QString RtfTypes(int index) {
    return index == 0 ? QStringLiteral("text/rtf") : QStringLiteral("application/rtf");
}

QString WithoutCr(const std::string& text) {
    return ToQt(text).replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
}

}  // namespace

void ClipboardSetText(const std::string& text) {
    QGuiApplication::clipboard()->setText(WithoutCr(text));
}

void ClipboardSetRtf(const std::string& rtf, const std::string& plainText) {
    auto* content = new QMimeData;
    content->setText(WithoutCr(plainText));
    for (int i = 0; i < 2; ++i) content->setData(RtfTypes(i), QByteArray::fromStdString(rtf));
    QGuiApplication::clipboard()->setMimeData(content);
}

std::string ClipboardText() {
    return WithCrLf(QGuiApplication::clipboard()->text().toStdString());
}

std::string ClipboardRtf() {
    const QMimeData* content = QGuiApplication::clipboard()->mimeData();
    for (int i = 0; content != nullptr && i < 2; ++i) {
        if (content->hasFormat(RtfTypes(i))) return content->data(RtfTypes(i)).toStdString();
    }
    return "";
}

}  // namespace tessaryn

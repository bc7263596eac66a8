#include "desktop/Clipboard.h"

#include <QClipboard>
#include <QGuiApplication>

#include "desktop/PaintedText.h"
#include "platform/Platform.h"
#include "text/TextSteps.h"
#include "view/TextExchange.h"

namespace tessaryn {

namespace {

constexpr const char* RtfTypes[] = {"text/rtf", "application/rtf"};

}  // namespace

Clip ClipOf(const QMimeData& data) {
    Clip content{WithCrLf(data.text().toStdString()), ""};
    for (const char* type : RtfTypes) {
        const QString name = QLatin1String(type);
        if (content.rtf.empty() && data.hasFormat(name)) {
            content.rtf = data.data(name).toStdString();
        }
    }
    return content;
}

bool HoldsText(const QMimeData& data) {
    return data.hasText() || data.hasFormat(QLatin1String(RtfTypes[0])) ||
           data.hasFormat(QLatin1String(RtfTypes[1]));
}

QMimeData* MimeDataOf(const Clip& content) {
    auto* data = new QMimeData;
    data->setText(ToQt(content.plain).replace(QStringLiteral("\r\n"), QStringLiteral("\n")));
    if (content.rtf.empty()) return data;
    for (const char* type : RtfTypes) {
        data->setData(QLatin1String(type), QByteArray::fromStdString(content.rtf));
    }
    return data;
}

void SetClipboard(const Clip& content) {
    QGuiApplication::clipboard()->setMimeData(MimeDataOf(content));
}

Clip ClipboardContent() {
    const QMimeData* data = QGuiApplication::clipboard()->mimeData();
    return data == nullptr ? Clip() : ClipOf(*data);
}

void OfferSelection(const RichTextBox& box) {
    QClipboard* clipboard = QGuiApplication::clipboard();
    if (!clipboard->supportsSelection()) return;
    clipboard->setMimeData(MimeDataOf(SelectionOf(box)), QClipboard::Selection);
}

}  // namespace tessaryn

#include "desktop/Clipboard.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMetaType>
#include <QVariant>
#include <new>
#include <utility>

#include "desktop/PaintedText.h"
#include "platform/Platform.h"
#include "text/TextSteps.h"
#include "view/TextExchange.h"

namespace tessaryn {

namespace {

constexpr const char* TextType = "text/plain";
constexpr const char* RtfTypes[] = {"text/rtf", "application/rtf"};

// What a program is handed out of this one: made when the first one asks for it.
class LateMimeData : public QMimeData {
  public:
    explicit LateMimeData(LateClip content) : content_(std::move(content)) {}

    QStringList formats() const override {
        QStringList types{QLatin1String(TextType)};
        if (content_.hasRtf) {
            for (const char* type : RtfTypes) types.append(QLatin1String(type));
        }
        return types;
    }
    bool hasFormat(const QString& type) const override { return formats().contains(type); }

  protected:
    QVariant retrieveData(const QString& type, QMetaType /*preferred*/) const override {
        if (!hasFormat(type)) return {};
        Make();
        if (type != QLatin1String(TextType)) return QByteArray::fromStdString(made_.rtf);
        return ToQt(made_.plain).replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    }

  private:
    void Make() const {
        if (!content_.make) return;
        try {
            made_ = std::exchange(content_.make, nullptr)();
        } catch (const std::bad_alloc&) {
            made_ = {};  // memory is short: there is nothing to be had
        }
    }

    mutable LateClip content_;  // asking changes nothing that anyone could see
    mutable Clip made_;
};

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

QMimeData* MimeDataOf(const LateClip& content) {
    return new LateMimeData(content);
}

void SetClipboard(const LateClip& content) {
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

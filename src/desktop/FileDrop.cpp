#include "desktop/FileDrop.h"

#include <QDropEvent>
#include <QFile>
#include <QFileInfo>
#include <QMimeData>
#include <QTimer>
#include <QUrl>
#include <QWidget>

#include "desktop/Desktop.h"
#include "document/Bytes.h"
#include "menu/MainWindow.h"
#include "platform/Questions.h"

namespace tessaryn {

namespace {

bool IsProof(const QString& path) {
    if (!QFileInfo(path).isFile()) return false;  // what is read from anything else may not come
    if (path.endsWith(QLatin1String(".proof"), Qt::CaseInsensitive)) return true;
    QFile file(path);
    constexpr auto length = static_cast<qsizetype>(FileMagic.size());
    return file.open(QIODevice::ReadOnly) &&
           file.read(length) == QByteArray::fromRawData(FileMagic.data(), length);
}

// The one proof file that is being dragged; "" for anything else.
QString ProofIn(const QMimeData& data) {
    const QList<QUrl> urls = data.urls();
    if (urls.size() != 1 || !urls.first().isLocalFile()) return {};
    const QString path = urls.first().toLocalFile();
    return IsProof(path) ? path : QString();
}

class FileDrop : public QObject {
  public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override {
        switch (event->type()) {
            case QEvent::DragEnter:
            case QEvent::DragMove:
                Offer(static_cast<QDropEvent&>(*event));
                return true;
            case QEvent::Drop:
                Offer(static_cast<QDropEvent&>(*event));
                if (event->isAccepted()) Open(*static_cast<QWidget*>(watched));
                return true;
            default:
                return QObject::eventFilter(watched, event);
        }
    }

  private:
    void Offer(QDropEvent& event) {
        // Once for a drag: the file need not be looked at again at each step of the pointer.
        if (event.type() != QEvent::DragMove) path_ = ProofIn(*event.mimeData());
        event.setAccepted(!path_.isEmpty() && !QuestionsOpen());
        if (!event.isAccepted()) return;
        event.setDropAction(Qt::CopyAction);  // whoever it comes from keeps the file
    }

    // Later, so that the program that it comes from need not wait.
    void Open(QWidget& window) {
        window.activateWindow();
        QTimer::singleShot(0, this, [path = path_.toStdString()] {
            if (QuestionsOpen()) return;
            Dispatch([&path] { OpenFromElsewhere(path); });
        });
    }

    QString path_;
};

}  // namespace

void TakeDroppedProofs(QWidget& window) {
    window.setAcceptDrops(true);
    window.installEventFilter(new FileDrop(&window));
}

}  // namespace tessaryn

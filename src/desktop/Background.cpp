// Work on other threads.
#include <QCoreApplication>
#include <QThreadPool>
#include <exception>
#include <memory>
#include <utility>

#include "desktop/Desktop.h"
#include "platform/Files.h"

namespace tessaryn {

namespace {

struct Writing {
    std::string path;
    std::function<std::string()> bytes;
    std::function<void(const std::string&)> then;
    std::string fault;
};

void Write(Writing& writing) {
    try {
        writing.fault = ReplaceFile(writing.path, writing.bytes());
    } catch (const std::exception&) {
        writing.fault = "That needs more memory than there is.";
    }
}

}  // namespace

void WriteBehind(const std::string& path, std::function<std::string()> bytes,
                 std::function<void(const std::string&)> then) {
    auto writing = std::make_shared<Writing>();
    *writing = {path, std::move(bytes), std::move(then), ""};
    QThreadPool::globalInstance()->start([writing = std::move(writing)]() mutable {
        Write(*writing);
        // What it holds shares with the document, and goes on the thread that writes to that.
        QMetaObject::invokeMethod(
            qApp,
            [writing = std::move(writing)] { Dispatch([&] { writing->then(writing->fault); }); },
            Qt::QueuedConnection);
    });
}

}  // namespace tessaryn

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

struct Work {
    std::function<std::string()> work;
    std::function<void(const std::string&)> then;
    std::string result;
};

}  // namespace

void RunBeside(std::function<std::string()> work, std::function<void(const std::string&)> then) {
    auto job = std::make_shared<Work>();
    *job = {std::move(work), std::move(then), ""};
    QThreadPool::globalInstance()->start([job = std::move(job)]() mutable {
        job->result = job->work();
        // What it holds shares with the document, and goes on the thread that writes to that.
        QMetaObject::invokeMethod(
            qApp, [job = std::move(job)] { Dispatch([&] { job->then(job->result); }); },
            Qt::QueuedConnection);
    });
}

void WriteBehind(const std::string& path, std::function<std::string()> bytes,
                 std::function<void(const std::string&)> then) {
    const auto write = [path, bytes = std::move(bytes)]() -> std::string {
        try {
            return ReplaceFile(path, bytes());
        } catch (const std::exception&) {
            return "That needs more memory than there is.";
        }
    };
    RunBeside(write, std::move(then));
}

}  // namespace tessaryn

#include "desktop/Announcements.h"

#include <QAccessible>
#include <QAccessibleObject>
#include <QApplication>
#include <QPointer>
#include <QStringList>
#include <QTimer>
#include <algorithm>

namespace tessaryn {

namespace {

// Screen readers speak a notification that comes up, and show the labels in it on a braille
// display. No widget stands for either: they are there for assistive tools alone.
class AnnouncedText : public QAccessibleObject {
  public:
    AnnouncedText(QObject* object, QAccessibleInterface* parent)
        : QAccessibleObject(object), parent_(parent) {}
    QAccessibleInterface* parent() const override { return parent_; }
    QAccessibleInterface* child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QAccessible::Role role() const override { return QAccessible::StaticText; }
    QAccessible::State state() const override { return {}; }
    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Name ? said : QString();
    }

    QString said;

  private:
    QAccessibleInterface* parent_;
};

class Announcement : public QAccessibleObject {
  public:
    explicit Announcement(QObject* object)
        : QAccessibleObject(object), text_(new AnnouncedText(new QObject(object), this)) {
        QAccessible::registerAccessibleInterface(text_);
    }
    QAccessibleInterface* parent() const override {
        return QAccessible::queryAccessibleInterface(qApp);
    }
    QAccessibleInterface* child(int index) const override { return index == 0 ? text_ : nullptr; }
    int childCount() const override { return 1; }
    int indexOfChild(const QAccessibleInterface* child) const override {
        return child == text_ ? 0 : -1;
    }
    QAccessible::Role role() const override { return QAccessible::Notification; }
    QAccessible::State state() const override { return {}; }
    // All is left to the label, so that nothing is said twice.
    QString text(QAccessible::Text) const override { return {}; }

    void Say(const QString& text) {
        text_->said = text;
        QAccessibleEvent event(this, QAccessible::ObjectShow);
        QAccessible::updateAccessibility(&event);
    }

  private:
    AnnouncedText* text_;
};

Announcement& TheAnnouncement() {
    static QPointer<QObject> object;
    static Announcement* announcement = nullptr;
    if (!object) {
        object = new QObject(qApp);
        announcement = new Announcement(object);
        QAccessible::registerAccessibleInterface(announcement);
    }
    return *announcement;
}

// A window that comes up or goes makes screen readers fall silent and say the window's name, which
// is to be over first.
constexpr int Delay = 200;  // milliseconds

QStringList Pending;

void SayPending() {
    if (Pending.isEmpty()) return;
    const QString text = Pending.join(QLatin1Char('\n'));
    Pending.clear();
    TheAnnouncement().Say(text);
}

}  // namespace

void Announce(const QString& text) {
    const auto words = [](const QString& said) {
        return said.endsWith(QLatin1Char('.')) ? said.chopped(1) : said;
    };
    const bool saidAlready = std::any_of(Pending.begin(), Pending.end(), [&](const QString& other) {
        return words(other) == words(text);
    });
    if (!QAccessible::isActive() || text.isEmpty() || saidAlready) return;
    if (Pending.isEmpty()) QTimer::singleShot(Delay, qApp, SayPending);
    Pending.append(text);
}

}  // namespace tessaryn

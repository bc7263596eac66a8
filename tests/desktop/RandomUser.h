// A user who does anything at all in the windows: commands, clicks, drags, keys, entries, files.
#pragma once

#include <QElapsedTimer>
#include <QPoint>
#include <QString>
#include <QTimer>
#include <fstream>
#include <random>
#include <set>
#include <string>

#include "platform/Form.h"

class QWidget;

namespace tessaryn {

// The program as main() starts it, with the user's directories below `home`.
void StartAtHome(const QString& home);
// Its end, if it has not come already.
void EndAtHome();

class RandomUser {
  public:
    // Reads and writes files in `directory` alone. Each action is a line of the file `log`.
    RandomUser(unsigned seed, QString directory, const std::string& log);

    void Act();
    // Closes what is open but the main window, and ends with no loop running but the caller's.
    void ComeToRest();

    // What the program showed that no user should see; "" if nothing.
    const std::string& Finding() const { return finding_; }
    // What it has been offered so far, by name: forms, and menu items of the main window.
    const std::set<std::string>& Seen() const { return seen_; }

  private:
    std::size_t Below(std::size_t limit);
    int Between(int first, int last);
    template <class Items>
    const auto& OneOf(const Items& items) {
        return *std::next(std::begin(items), static_cast<std::ptrdiff_t>(Below(std::size(items))));
    }
    void Log(const std::string& action);
    void LookForFindings();
    void ActInside(int loops);

    void WorkIn(QWidget& window);
    void Command();
    void ClickInProof();
    void AnswerBox(QWidget& window);
    void Enter(QWidget& box);
    void AnswerFileDialogue(QWidget& window);
    void PressAnyKey(QWidget& window);
    QPoint PlaceIn(const QWidget& target);
    void UseMouse(QWidget& target, const QPoint& place, std::size_t kind);
    void ChangeWindow(QWidget& window);
    void ChangeFile();
    void CopyElsewhere();

    std::mt19937 random_;
    QString directory_;
    std::ofstream log_;
    QElapsedTimer clock_;
    int actions_ = 0;
    std::string finding_;
    std::set<std::string> seen_;
    QTimer inside_;  // goes on where an action has begun a loop of its own
    int loops_ = 0;  // that ran when the action under way began
};

}  // namespace tessaryn

// The dialogues for opening and saving files.
#include <QFileDialog>
#include <QFileInfo>
#include <QListView>
#include <QRegularExpression>
#include <QStringList>
#include <algorithm>
#include <utility>

#include "desktop/DataFolder.h"
#include "desktop/Desktop.h"
#include "desktop/HelpViewer.h"
#include "desktop/PaintedText.h"
#include "output/Recovery.h"
#include "output/SavingOver.h"

namespace tessaryn {

namespace {

constexpr int PlacesWidth = 200;  // of the list of places at the most, in pixels, unless by hand

// "Proofs (*.proof)|*.proof|..." as a list of "Proofs (*.proof)".
QStringList Filters(const std::string& filter) {
    QStringList filters;
    const QStringList parts = ToQt(filter).split(QLatin1Char('|'));
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        QString name = parts[i];
        const auto bracket = name.indexOf(QStringLiteral(" ("));
        if (bracket >= 0) name.truncate(bracket);
        const QString patterns = QString(parts[i + 1]).replace(QLatin1Char(';'), QLatin1Char(' '));
        filters.append(name + QStringLiteral(" (") + patterns + QLatin1Char(')'));
    }
    return filters;
}

// Of the first pattern, without the dot; "" if it names none.
QString Suffix(const std::string& filter) {
    static const QRegularExpression pattern(QStringLiteral("\\|\\*\\.(\\w+)"));
    return pattern.match(ToQt(filter)).captured(1);
}

// Finds a file also by its name without the ending that the other dialogue gives to such a name.
class OpenDialogue : public QFileDialog {
  public:
    OpenDialogue(QWidget* parent, const CommonDialog& dialog)
        : QFileDialog(parent, QStringLiteral("Open")),
          suffix_(Suffix(dialog.Filter)),
          lastMode_(dialog.FileMustExist ? ExistingFile : AnyFile) {
        setAcceptMode(AcceptOpen);
        setFileMode(AnyFile);
        for (const QString& place : {ExamplesFolder(), ToQt(RecoveryDir)}) {
            if (!place.isEmpty()) ownPlaces_ << QUrl::fromLocalFile(place);
        }
        setSidebarUrls(sidebarUrls() << ownPlaces_);
        if (auto* places = findChild<QListView*>(QStringLiteral("sidebar"))) {
            const int width = places->sizeHintForColumn(0) + 2 * places->frameWidth();
            places->setMinimumWidth(std::min(width, PlacesWidth));
        }
    }

    // The toolkit keeps what stands there for the dialogues of all programs.
    ~OpenDialogue() override {
        QList<QUrl> places = sidebarUrls();
        places.removeIf([this](const QUrl& place) { return ownPlaces_.contains(place); });
        setSidebarUrls(places);
    }

    void accept() override {
        setDefaultSuffix(QString());
        if (!QFileInfo::exists(selectedFiles().value(0))) setDefaultSuffix(suffix_);
        // Earlier, it would not let the user choose Open for a name without its ending.
        setFileMode(lastMode_);
        QFileDialog::accept();
        setFileMode(AnyFile);
    }

  private:
    QString suffix_;
    FileMode lastMode_;
    QList<QUrl> ownPlaces_;  // examples and recovered proofs
};

// The dialogue of a desktop environment asks about the name as it was typed, which gets its ending
// only then; the toolkit's own asks about the name with its ending.
bool LeadsOverAFileUnasked(QFileDialog& dialogue) {
    const QString path = dialogue.selectedFiles().value(0);
    if (dialogue.layout() != nullptr || !QFileInfo(path).isFile()) return false;
    dialogue.setDefaultSuffix(QString());
    return dialogue.selectedFiles().value(0) != path;
}

// Deletes itself once it has been answered.
void Run(QFileDialog& dialogue, const CommonDialog& dialog,
         std::function<void(const ChosenFile&)> reply) {
    SyncWindows();
    if (!dialog.Title.empty()) dialogue.setWindowTitle(ToQt(dialog.Title));
    dialogue.setNameFilters(Filters(dialog.Filter));
    if (!dialog.InitDir.empty()) dialogue.setDirectory(ToQt(dialog.InitDir));
    if (!dialog.FileName.empty()) dialogue.selectFile(ToQt(dialog.FileName));
    dialogue.setAttribute(Qt::WA_DeleteOnClose);
    QObject::connect(&dialogue, &QDialog::finished, &dialogue,
                     [&dialogue, reply = std::move(reply)](int result) {
                         const QStringList files = dialogue.selectedFiles();
                         ChosenFile chosen;
                         if (result == QDialog::Accepted && !files.isEmpty()) {
                             chosen = files.constFirst().toStdString();
                         }
                         Dispatch([&] { reply(chosen); });
                     });
    LeaveManualUsable(dialogue, "files");
    dialogue.open();
}

}  // namespace

void PresentOpen(const CommonDialog& dialog, std::function<void(const ChosenFile&)> reply) {
    Run(*new OpenDialogue(TopWindow(), dialog), dialog, std::move(reply));
}

void PresentSave(const CommonDialog& dialog, std::function<void(const ChosenFile&)> reply) {
    auto& dialogue = *new QFileDialog(TopWindow(), QStringLiteral("Save as"));
    dialogue.setAcceptMode(QFileDialog::AcceptSave);
    dialogue.setFileMode(QFileDialog::AnyFile);
    dialogue.setDefaultSuffix(Suffix(dialog.Filter));
    dialogue.setOption(QFileDialog::DontConfirmOverwrite, !dialog.OverwritePrompt);
    Run(dialogue, dialog, [&dialogue, dialog, reply](const ChosenFile& chosen) {
        if (!chosen || !dialog.OverwritePrompt || !LeadsOverAFileUnasked(dialogue)) {
            return reply(chosen);
        }
        CommonDialog again = dialog;
        again.FileName = *chosen;
        MsgBox(MayReplace(*chosen), [chosen, again, reply](Answer answer) {
            answer == Answer::Yes ? reply(chosen) : PresentSave(again, reply);
        });
    });
}

}  // namespace tessaryn

#include "output/SavingOver.h"

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <utility>

#include "mainwindow/ProgramState.h"
#include "mainwindow/Questions.h"
#include "platform/InputFile.h"

namespace tessaryn {
namespace {

namespace fs = std::filesystem;

bool IsSameFile(const std::string& path, const std::string& other) {
    std::error_code error;
    return path == other || fs::equivalent(path, other, error);
}

// Nothing that is no file, or is gone, can be saved over.
bool IsFile(const std::string& path) {
    std::error_code error;
    return fs::is_regular_file(path, error);
}

// Only the content counts: a file that was touched or copied back is the same, and one that was
// rewritten in the same moment is not.
bool HoldsWhatWasSeen(const std::string& path) {
    InputFile file(path);
    if (!file.Good() || file.Size() != SeenProofFile.size) return false;
    const std::uint64_t length = SeenProofFile.print.length;
    std::string piece(65536, '\0');
    std::size_t got = 1;
    while (got > 0 && file.Print().length < length) {
        const std::uint64_t left = length - file.Print().length;
        got = file.Read(piece.data(),
                        static_cast<std::size_t>(std::min<std::uint64_t>(piece.size(), left)));
    }
    return file.Print() == SeenProofFile.print;
}

Message MaySaveOver(const std::string& whatIsThere) {
    return {whatIsThere + " Save over it?", "WARNING", Buttons::YesNo, Answer::No};
}

void AskToSaveOver(const Message& question, EventHandler save, EventHandler otherwise) {
    Ask(question, [save = std::move(save), otherwise = std::move(otherwise)](Answer answer) {
        if (answer == Answer::Yes) return save();
        OperationCancelled = true;
        otherwise();
    });
}

}  // namespace

SeenFile AsWritten(const std::string& path, const std::string& bytes) {
    FingerprintTaker print;
    print.Add(bytes);
    return {path, bytes.size(), print.Value()};
}

void SaveUnlessChanged(EventHandler save, EventHandler otherwise) {
    const bool seen = IsSameFile(ProofFileName, SeenProofFile.path) && IsFile(ProofFileName);
    if (!seen || HoldsWhatWasSeen(ProofFileName)) return save();
    AskToSaveOver(MaySaveOver("The file was changed by another program."), std::move(save),
                  std::move(otherwise));
}

Message MayReplace(const std::string& name) {
    return MaySaveOver("The file " + name + " exists already.");
}

void ReplaceIfWanted(const std::string& name, EventHandler save, EventHandler otherwise) {
    if (IsSameFile(name, ProofFileName) || !IsFile(name)) return save();
    AskToSaveOver(MayReplace(name), std::move(save), std::move(otherwise));
}

}  // namespace tessaryn

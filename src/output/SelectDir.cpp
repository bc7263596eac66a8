#include "output/SelectDir.h"

#include <filesystem>

#include "mainwindow/Proof.h"
#include "output/Settings.h"
#include "platform/Platform.h"

namespace tessaryn {

SelectDirForm::SelectDirForm() : Form("SelectDir", "Select Default Directory") {
    DirectoryList.Change = [this] {
        CurrentDefault.Caption = DirectoryList.Path;
        StatusLine.Caption.clear();
    };
    cmdContinue.Click = [this] { RunHandler([this] { Continue(); }); };
    cmdCancel.Click = [this] { Hide(); };
    DefaultButton = &cmdContinue;
}

void SelectDirForm::Activated() {
    std::error_code error;
    StatusLine.Caption.clear();
    CurrentDefault.Caption = DefaultDir;
    if (DirectoryList.Path.empty()) {
        DirectoryList.Path = std::filesystem::current_path(error).string();
    }
    if (DefaultDir.empty()) return;
    if (std::filesystem::is_directory(DefaultDir, error)) {
        DirectoryList.Path = DefaultDir;
    } else {
        Beep("The directory \"" + DefaultDir + "\" is not there any more.");
        StatusLine.Caption = "Directory not available";
    }
}

void SelectDirForm::Continue() {
    const std::string fault = SaveDefaultDir(DirectoryList.Path);
    if (fault.empty()) {
        Hide();
    } else {
        Beep("The choice can't be saved. " + fault);
    }
}

void SelectDirCommand() {
    ShowModal(SelectDir);
}

}  // namespace tessaryn

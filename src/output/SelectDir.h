// Asks for the directory in which the file dialogues begin.
#pragma once

#include "platform/Form.h"

namespace tessaryn {

struct SelectDirForm : Form {
    SelectDirForm();

    void Activated() override;

    Label Label1{*this, "Label1", "Selected Directory:"};
    Label CurrentDefault{*this, "CurrentDefault"};
    Label Label2{*this, "Label2", "Directory:"};
    DirectoryBox DirectoryList{*this, "DirectoryList"};
    Label StatusLine{*this, "StatusLine"};
    Button cmdContinue{*this, "cmdContinue", "Continue..."};
    Button cmdCancel{*this, "cmdCancel", "Cancel"};

  private:
    void Continue();
};

inline SelectDirForm SelectDir;

void SelectDirCommand();

}  // namespace tessaryn

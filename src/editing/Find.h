// Search for a string in what the proof shows. The form is modeless and stays loaded: Repeat Find
// goes on with its direction.
#pragma once

#include <string>

#include "platform/Form.h"
#include "platform/RichTextBox.h"

namespace tessaryn {

inline std::string FindString;  // of the last search, "@" for the element sign
inline int FindPos = 0;         // where the next search starts, 1-based in ProofText; 0: none yet

struct FindForm : Form {
    FindForm();

    void Activated() override;

    Label SearchStringLabel{*this, "SearchStringLabel", "Search String (Case Sensitve)"};
    RichTextBox SearchStringTextBox{*this, "SearchStringTextBox"};
    Label SearchDirectionLabel{*this, "SearchDirectionLabel", "Search Direction"};
    OptionButton optForward{*this, "optForward", "Forward"};
    OptionButton optBackward{*this, "optBackward", "Backward"};
    CheckBox ChkActiveOnly{*this, "ChkActiveOnly", "Active statements only"};
    Label HeadingLabel{*this, "HeadingLabel", "...OR Search for heading"};
    OptionButton optProve{*this, "optProve", "\"Prove:\"", Headings};
    OptionButton optDefine{*this, "optDefine", "\"Define:\"", Headings};
    OptionButton optSufficient{*this, "optSufficient", "\"Sufficient:\"", Headings};
    OptionButton optAsRequired{*this, "optAsRequired", "\"As Required:\"", Headings};
    Label StatusLine{*this, "StatusLine"};
    Button cmdFind{*this, "cmdFind", "Find"};
    Button cmdPaste{*this, "cmdPaste", "Paste"};
    Button cmdCancel{*this, "cmdCancel", "Cancel"};

  private:
    static constexpr int Headings = 1;  // their group among the options

    void ClearHeadings();
    void TakeHeading(const std::string& heading);
    bool BoxKey(const KeyEvent& key);
    void PutIntoBox(const Clip& content);
    void FindFirst();
    void Refuse(const std::string& message);
};

inline FindForm Find;

// The menu items.
void ShowFind();
void RepeatFind();

}  // namespace tessaryn

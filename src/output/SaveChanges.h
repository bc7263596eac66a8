// The question for unsaved changes, asked by New, Open and Exit.
//
// After it, OperationCancelled tells the caller to stop. With OpenFollows set the form goes on with
// the opening of a file by itself.
#pragma once

#include "platform/Form.h"
#include "platform/Platform.h"

namespace tessaryn {

inline bool OpenFollows = false;   // after the question, a file is to be opened
inline bool RecentPicked = false;  // Open runs for an entry of the recent files
inline std::string RecentName;     // that entry

struct SaveChangesForm : Form {
    SaveChangesForm();

    void Activated() override;
    void Close() override;

    Label FileName{*this, "FileName"};
    Button cmdYes{*this, "cmdYes", "Yes"};
    Button cmdNo{*this, "cmdNo", "No"};
    Button cmdCancel{*this, "cmdCancel", "Cancel"};

  private:
    void Yes();
    void No();
    void SaveAs(const std::string& name);
    void GoOn();
    void OpenProofFile(const std::string& path);
};

inline SaveChangesForm SaveChanges;

}  // namespace tessaryn

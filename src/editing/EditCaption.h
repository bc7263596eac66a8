// The dialogue for the caption of the proof, which stands in the title of the window.
#pragma once

#include "platform/Form.h"
#include "platform/RichTextBox.h"

namespace tessaryn {

struct EditCaptionForm : Form {
    EditCaptionForm();

    void Activated() override;

    RichTextBox RTB{*this, "RTB"};
    Button Continue{*this, "Continue", "Continue..."};
    Button Cancel{*this, "Cancel", "Cancel"};
    Button Clear{*this, "Clear", "Clear"};

  private:
    void Fill(const std::string& text);
    void ContinuePressed();
};

inline EditCaptionForm EditCaption;

// The menu item.
void EditProofCaption();

}  // namespace tessaryn

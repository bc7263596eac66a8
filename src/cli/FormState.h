// What a form and its controls show, as text, and which of them a user can reach.
#pragma once

#include <string>

#include "platform/Form.h"
#include "platform/RichTextBox.h"

namespace tessaryn {

// How the signs from the symbol fonts are to be written.
struct SignTexts {
    const char* element;
    const char* rightTriangle;
    const char* upTriangle;
};

// The content of a surface with its signs written so. Lengths stay if the signs' are 1.
std::string TextWithSigns(RichTextBox& box, const SignTexts& signs);

// As an expression or a comment is read back: "@" for the element sign.
std::string BoxText(RichTextBox& box);

// A box's content, the caption of a label, button or menu item; "true" or "false" for a check box
// or an option.
std::string ControlText(Control& control);

// Visible and enabled; of a menu item, every title above it as well.
bool CanReach(const Control& control);

}  // namespace tessaryn

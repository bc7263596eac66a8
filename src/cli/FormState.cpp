#include "cli/FormState.h"

#include <algorithm>

namespace tessaryn {

namespace {

const char* Sign(char character, const std::string& font, const SignTexts& signs) {
    if (font == "Symbol" && character == 'e') return signs.element;
    if (font == "Webdings" && character == '4') return signs.rightTriangle;
    if (font == "Webdings" && character == '5') return signs.upTriangle;
    return nullptr;
}

const MenuItem* ParentOf(const MenuItem& item) {
    for (const Control* control : item.Parent.Controls) {
        const auto* title = dynamic_cast<const MenuItem*>(control);
        if (title == nullptr) continue;
        if (std::find(title->Items.begin(), title->Items.end(), &item) != title->Items.end()) {
            return title;
        }
    }
    return nullptr;
}

}  // namespace

std::string TextWithSigns(RichTextBox& box, const SignTexts& signs) {
    const std::string& stored = box.GetText();
    std::string text;
    for (const FormatRun& run : box.Runs()) {
        for (int at = run.start; at < run.start + run.length; ++at) {
            const char character = stored[static_cast<std::size_t>(at)];
            const char* sign = Sign(character, run.format.Font, signs);
            sign == nullptr ? text += character : text += sign;
        }
    }
    return text;
}

std::string BoxText(RichTextBox& box) {
    return TextWithSigns(box, {"@", "4", "5"});
}

std::string ControlText(Control& control) {
    if (auto* box = dynamic_cast<RichTextBox*>(&control)) return BoxText(*box);
    if (auto* box = dynamic_cast<TextBox*>(&control)) return box->Text;
    if (auto* list = dynamic_cast<DirectoryBox*>(&control)) return list->Path;
    if (auto* label = dynamic_cast<Label*>(&control)) return label->Caption;
    if (auto* button = dynamic_cast<Button*>(&control)) return button->Caption;
    if (auto* item = dynamic_cast<MenuItem*>(&control)) return item->Caption;
    if (auto* check = dynamic_cast<CheckBox*>(&control)) return check->Value ? "true" : "false";
    if (auto* option = dynamic_cast<OptionButton*>(&control)) {
        return option->Value ? "true" : "false";
    }
    return "";
}

bool CanReach(const Control& control) {
    if (!control.Visible || !control.Enabled) return false;
    const auto* item = dynamic_cast<const MenuItem*>(&control);
    const MenuItem* title = item == nullptr ? nullptr : ParentOf(*item);
    return title == nullptr || CanReach(*title);
}

}  // namespace tessaryn

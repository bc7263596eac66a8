// A proof of the greatest length as the content of a surface.
#pragma once

#include <string>
#include <vector>

#include "platform/RichTextBox.h"

namespace tessaryn {

struct LongProof {
    LongProof() {
        for (int n = 1; n <= Statements; ++n) {
            text += Statement;
            blocks.push_back({Length, static_cast<std::uint64_t>(n)});
        }
    }

    void Append(const std::string& line) {
        text += line;
        blocks.push_back({static_cast<int>(line.size()), 1});
    }
    void Show(RichTextBox& box) {
        box.SetBlocks(text, blocks, [this](int index) {
            ++formatted;
            return std::vector<FormatRun>{{0, blocks[static_cast<std::size_t>(index)].length, {}}};
        });
    }

    static constexpr int Statements = 32000;
    static constexpr char Statement[] =
        "1\tALL(x):[x @ S => EXIST(y):f(x)=y]\r\n\t\tPremise\r\n\r\n";
    static constexpr int Length = sizeof(Statement) - 1;

    std::string text;
    std::vector<RichTextBox::Block> blocks;
    int formatted = 0;  // blocks
};

}  // namespace tessaryn

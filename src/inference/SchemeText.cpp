#include "inference/SchemeText.h"

#include <string_view>

namespace tessaryn {
namespace {

// Appends the content of a {...} for i = 2 to n.
void AppendRepeated(std::string& text, std::string_view content, int n) {
    for (int i = 2; i <= n; ++i) {
        for (const char c : content) {
            if (c == '#') {
                text += std::to_string(i);
            } else {
                text += c;
            }
        }
    }
}

}  // namespace

std::string SchemeText(const AxiomScheme& scheme, int n) {
    if (n == 1 && scheme.textOfOne != nullptr) return scheme.textOfOne;
    std::string text;
    std::string_view rest = scheme.text;
    while (!rest.empty()) {
        const std::size_t open = rest.find('{');
        text += rest.substr(0, open);
        if (open == std::string_view::npos) break;
        const std::size_t close = rest.find('}', open);
        AppendRepeated(text, rest.substr(open + 1, close - open - 1), n);
        rest.remove_prefix(close + 1);
    }
    return text;
}

}  // namespace tessaryn

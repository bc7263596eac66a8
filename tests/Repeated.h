#pragma once

#include <string>
#include <string_view>

namespace tessaryn {

inline std::string Repeated(std::string_view text, int times) {
    std::string all;
    for (int i = 0; i < times; ++i) all += text;
    return all;
}

}  // namespace tessaryn

// Any bytes as the settings files, one behind the other with a length of two bytes ahead of each:
// the program starts and works with them, and reads what it has written. Seeds lie in
// corpus/settings.
#include <algorithm>

#include "FuzzedProgram.h"
#include "MemoryFiles.h"
#include "cli/HeadlessPlatform.h"

using namespace tessaryn;

namespace {

// Writes all four files, and opens a proof by the first of the recent ones.
constexpr const char* Session =
    "choose optPremise\nset RTB \"P\"\nchoose cmdContinue\nsave \"a.proof\"\n"
    "choose optLargeText\nchoose optShowTip\nchoose optSelectDir\nchoose cmdContinue\n"
    "choose optFile1\nexpect title \" Tessaryn 2.0  -  a.proof\"\n";

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    MemoryFiles.clear();
    std::string rest(data, data + size);
    for (const char* name :
         {"DefaultDir.bin", "RecentFiles.bin", "UserFontSize.bin", "UserOption.bin"}) {
        if (rest.size() < 2) break;  // the others are missing
        const std::size_t length =
            static_cast<unsigned char>(rest[0]) * 256U + static_cast<unsigned char>(rest[1]);
        MemoryFiles[std::string("settings/") + name] = rest.substr(2, length);
        rest.erase(0, std::min(rest.size(), 2 + length));
    }
    RunAnyScript("choose optFile5\n", "settings");
    RunAnyScript(Session, "settings");
    RunAnyScript("expect title \" Tessaryn 2.0  -  (Untitled)\"\n", "settings");
    if (!Headless.Beeps.empty()) Require("what is written can't be read: " + Headless.Beeps[0]);
    return 0;
}

// From a target as a script names it to a place on a surface.
#pragma once

#include <string>

#include "cli/Script.h"
#include "platform/RichTextBox.h"

namespace tessaryn {

struct Place {
    int start = 0;   // 0-based byte of the surface
    int length = 0;  // bytes to select
};

// Of `click` and `doubleclick`: N, N "TOKEN" [K], N number, N rule, N comment, intro, at P.
int ClickTarget(Arguments& arguments);

// Of `select`: N "TEXT" [K].
Place SelectTarget(Arguments& arguments);

// Of `pick`: "TEXT" [K].
int PickTarget(RichTextBox& box, Arguments& arguments);

// Fails if there is no statement of that number.
void RequireLine(int line);

}  // namespace tessaryn

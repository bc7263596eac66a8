// What is said to people who listen to the screen: prompts, messages, notes and new statements,
// which come up away from the focus.
#pragma once

class QString;

namespace tessaryn {

// Says a text a moment later, with all else that there is to say until then, each text once. Does
// nothing while no assistive tool is there.
void Announce(const QString& text);

}  // namespace tessaryn

// A user who does anything at all: commands, clicks and entries at random, each of them an action
// of a script.
#pragma once

#include <functional>
#include <sstream>
#include <string>
#include <vector>

#include "cli/Script.h"
#include "platform/Form.h"
#include "platform/RichTextBox.h"

namespace tessaryn {

using RandomNumber = std::function<std::size_t(std::size_t limit)>;  // below the limit

// The same numbers on every machine.
RandomNumber RandomNumbers(unsigned seed);

// Goes on from whatever is open. While it lives, it answers the forms that come up.
class RandomWalk {
  public:
    explicit RandomWalk(RandomNumber random);
    RandomWalk(const RandomWalk&) = delete;
    RandomWalk& operator=(const RandomWalk&) = delete;

    void Step();
    // Starts the program anew.
    void Restart();
    // Takes the last command back and does it again. "", or the law that this breaks.
    std::string UndoAndRedo();

    // What has been done since the last start, for tessaryn-cli.
    const std::string& Script() const { return script_; }

  private:
    bool Do(const std::string& line);
    int Place();  // of the display
    void ClickSomewhere();
    std::string Selection();
    std::string Pick(RichTextBox& box);
    void LookSomewhere();
    void UseFind();
    void AnswerForm();
    void AnswerAsItComes(Form& form);

    RandomNumber random_;
    std::ostringstream output_;
    ScriptRun run_{output_};
    std::string script_;
    std::vector<MenuItem*> usual_;  // each as often as users choose it, more or less
    std::vector<MenuItem*> all_;
};

// The first law that the open document breaks, "" if none: it fits together, the display is that of
// a rebuild, what is saved opens again as it is, and no handler met what it did not expect.
std::string BrokenDocumentLaw();

}  // namespace tessaryn

// A user who does anything at all: commands, clicks and entries at random.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/Form.h"

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

  private:
    int Place();  // of the display
    void ClickSomewhere();
    void LookSomewhere();
    void UseFind();
    void AnswerForm();
    void AnswerAsItComes(Form& form);

    RandomNumber random_;
    std::vector<MenuItem*> usual_;  // each as often as users choose it, more or less
    std::vector<MenuItem*> all_;
};

// The first law that the open document breaks, "" if none: it fits together, the display is that of
// a rebuild, what is saved opens again as it is, and no handler met what it did not expect.
std::string BrokenDocumentLaw();

}  // namespace tessaryn

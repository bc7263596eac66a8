// A second opinion on proof files, independent of the editor that writes them.
//
// Nothing of the program is used here and nothing is believed that a file says of itself: each line
// is read anew and must follow, by the rule that it names, from the lines that it names. See
// docs/checker.md for what that means for each rule.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tessaryn::check {

enum class Verdict {
    Accepted,
    Refused,   // a line does not follow, or the file is none that the editor writes
    Declined,  // no line was found wrong, but one could not be judged
};

// A statement in words that are the same for statements that differ in bound names only; "" for
// what is no statement. The text may have any layout.
std::string StatementKey(std::string_view text);

// The names that a ground has if its kind is Menu, without " for n of line 1".
std::vector<std::string> MenuAxioms();
// Which of them a created axiom of that text would have; "" none.
std::string MenuAxiomThatReads(std::string_view text);

// What a line rests on that was not derived.
struct Ground {
    enum class Kind {
        Premise,  // an open one
        Created,  // an axiom in the author's words
        Menu,     // an axiom of the menus
        Witness,  // the line speaks of what an E Spec brought in
    };
    Kind kind;
    int line;          // where it stands
    std::string text;  // of a premise or created axiom its statement; else the axiom, the name
    int about = 0;     // of Induction: the line of the axiom whose n it speaks of; 0 if of every n
};

// How reports word it: "premise P & Q in line 3".
std::string Worded(const Ground& ground);

// A file that was looked at. It holds what it needs of the file.
class CheckedProof {
  public:
    Verdict verdict = Verdict::Accepted;
    int faultyLine = 0;    // the one that was refused or declined; 0 if no one line is to blame
    std::string sentence;  // why; "" if accepted

    int Count() const;
    bool InForce(int line) const;      // at the end
    std::string Text(int line) const;  // the statement on one line
    std::string Key(int line) const;   // as StatementKey gives it
    std::string Annotation(int line) const;
    // Of an accepted proof, in the order of the lines. Equal ones are told once.
    std::vector<Ground> RestsOn(int line) const;

    // What RestsOn is made of, for those who walk from line to line themselves: the lines that a
    // line was derived from,
    std::vector<int> Sources(int line) const;
    // what it is if it was not (a premise counts until the line of its Conclusion, 0 none),
    std::optional<Ground> OwnGround(int line) const;
    int DischargedIn(int line) const;
    // and the choices that it speaks of.
    std::vector<Ground> WitnessesOf(int line) const;

  private:
    friend CheckedProof CheckProof(std::string file);
    struct Content;
    std::shared_ptr<const Content> content_;
};

CheckedProof CheckProof(std::string file);

// "proved" or "rests on ...", of a line of an accepted proof.
std::string WordedGrounds(const CheckedProof& proof, int line);

// The same of the last line of a proof that is accepted; else what is wrong.
std::string Summary(const CheckedProof& proof);

}  // namespace tessaryn::check

// What may be used where: which lines are in force, and which names are in use.
//
// A Premise opens a block; the Conclusion that names it closes it, and from then on no line of the
// block is in force. The Conclusion itself stands outside.
#pragma once

#include <span>
#include <vector>

namespace tessaryn::check {

class Scope {
  public:
    // The next line, with its free names and which of them its record calls red. It is in force.
    void Enter(std::span<const int> names, std::span<const char> reds);
    // The block from `premise` to the line entered last is closed.
    void Close(int premise);

    void OpenPremise();         // the line entered last is one
    void BringIn(int witness);  // by the line entered last, an E Spec

    int Count() const { return static_cast<int>(inForce_.size()) - 1; }
    bool InForce(int line) const { return inForce_[static_cast<std::size_t>(line)] != 0; }
    // Open premises, the innermost last. One may stand in a closed block's midst: a deletion took
    // its Conclusion.
    std::span<const int> OpenPremises() const { return openPremises_; }

    int FirstPremise() const { return firstPremise_; }  // open or not; 0 none

    std::span<const int> Names(int line) const;
    std::span<const char> Reds(int line) const;  // for each of its names
    // The first line in force in which the name is free; 0 none.
    int FirstUse(int name) const { return UseOf(name).first; }
    // The first line of all in which it is free, in force or not; 0 none.
    int FirstEver(int name) const { return UseOf(name).firstEver; }
    // Whether a name that the record of the next line calls red may have been in use when that was
    // written: in a line whose block was closed since. If no premise was open then, it was red
    // there.
    bool MayHaveBeenInUse(int name) const;
    // The E Spec in force that brought the name in; 0 none.
    int WitnessLine(int name) const { return UseOf(name).witnessLine; }

  private:
    struct Use {
        int first = 0;
        int witnessLine = 0;
        int firstEver = 0;
        bool everRed = false;
    };
    Use UseOf(int name) const;

    std::vector<char> inForce_ = {0};
    std::vector<int> linesInForce_;
    std::vector<int> openPremises_;
    int firstPremise_ = 0;
    std::vector<int> witnesses_;           // in force
    std::vector<Use> uses_;                // by name
    std::vector<int> names_;               // of all lines
    std::vector<char> reds_;               // of all lines
    std::vector<std::size_t> ends_ = {0};  // of each line's names in names_
};

}  // namespace tessaryn::check

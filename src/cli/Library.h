// A directory of proofs whose last statements may be used as axioms by others.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "check/Check.h"

namespace tessaryn {

// Something that a line rests on: an axiom or premise, or a theorem of a library.
struct Basis {
    enum class Kind { Premise, Axiom, Menu, Witness, Theorem };
    Kind kind;
    int line;  // in the file that is asked about; 0 if it comes by way of a theorem
    std::string text;
    std::string worded;
    int about = 0;  // as Ground has it, in the file that is asked about
};

const char* KindName(Basis::Kind kind);  // "premise" and so on

class Library {
  public:
    Library() = default;
    // Reads and checks all proofs in the directory and below, on so many threads.
    Library(const std::string& directory, int jobs);

    // Why a file of the directory is no theorem though it is no proof that is accepted, a sentence
    // for each such file.
    const std::vector<std::string>& Faults() const { return faults_; }

    // What a line of an accepted proof rests on. A created axiom that reads like a theorem, up to
    // bound names, is told as that, and what the theorem rests on beside it, all the way down.
    // circle: the theorems that rest on themselves, if there are such; then the rest means nothing.
    std::vector<Basis> BasesOf(const check::CheckedProof& proof, int line,
                               std::string& circle) const;

    struct Theorem {
        std::string file;  // its path from the directory on
        check::CheckedProof proof;
    };
    const std::vector<Theorem>& Theorems() const { return theorems_; }  // sorted by file

  private:
    struct Use {
        check::Ground ground;
        std::string key;  // of a created axiom
    };
    struct Walk;
    static std::vector<Use> UsesOf(const check::CheckedProof& proof, int line);
    void Follow(const std::vector<Use>& uses, Walk& walk) const;

    std::vector<Theorem> theorems_;
    std::vector<std::vector<Use>> uses_;              // of each theorem
    std::map<std::string, std::size_t> byStatement_;  // the first of those that read alike
    std::vector<std::string> faults_;
};

}  // namespace tessaryn

// What several measurements do: statements written, clicked and looked at.
#pragma once

#include <string>

#include "cli/HeadlessPlatform.h"
#include "document/Document.h"

namespace tessaryn {

// Starts the program anew with a large proof in memory.
void MakeLargeProof(int count);

// Writes a statement as an axiom.
void Write(const std::string& text);

// A click on a place of a shown statement. index: 1-based in ProofText. length: what is selected.
void Click(int line, int index, int length = 0);

// A click on the first character of a shown statement.
void ClickStatement(int line, int length = 0);

// The proof as it stood when this was made, to be put back after each round.
class KeptProof {
  public:
    KeptProof() : document_(Doc) {}

    void PutBack() const;
    int Count() const { return document_.StmtCount; }

  private:
    Document document_;
};

// Answers for as long as a form asks.
inline void AnswerForms(const EventHandler& answer) {
    while (ModalFormOpen()) {
        answer();
        SettleQuestions();
    }
}

// What the desktop takes after each command: the changed range, and the formats of a screenful.
void LookAtScreen();

}  // namespace tessaryn

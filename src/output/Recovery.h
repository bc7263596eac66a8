// Copies of work that is in no file yet.
//
// While the open proof has changes, a copy of it stands in RecoveryDir, which the next start offers
// if this program does not come to an orderly end. What the user throws away with a No is kept
// there for a week. A copy is a proof file; behind its text, where no reader looks, follow what
// Restore needs to know of the proof's own file.
#pragma once

#include <string>

#include "platform/Form.h"

namespace tessaryn {

inline std::string RecoveryDir;  // "" for no copies

// The user's directory for RecoveryDir, which is made if it is missing; "" if that can't be done.
std::string FindRecoveryDir();

// Sees to it that a copy is kept from now on, every other second where there is something new.
void StartKeepingCopies();

// What the timer does: if the proof has changes that the copy lacks, has a new copy written beside
// the user's work. If that fails a note says so, once.
void KeepCopy();

// The proof is in its file, or is no more: the copy goes.
void DropCopy();

// Keeps the proof as it is, as something that the user throws away.
void KeepDiscarded();

// At the orderly end of the program: nothing of it stays but what was thrown away.
void EndKeepingCopies();

// Leaves the copies as they stand and knows nothing of them any more.
void ForgetCopies();

// Asks whether to restore what a program that was not closed properly has left, if there is any.
void OfferRecovery(const EventHandler& then);

struct RecoveryForm : Form {
    RecoveryForm();

    void Activated() override;
    void Close() override { Hide(); }  // as Later

    Label Message{*this, "Message", "Tessaryn was not closed properly. Restore the unsaved proof?"};
    Label FileName{*this, "FileName"};
    Button cmdRestore{*this, "cmdRestore", "Restore"};
    Button cmdDiscard{*this, "cmdDiscard", "Discard"};
    Button cmdLater{*this, "cmdLater", "Later"};
    std::string Copy;  // the path of the copy that is asked about
};

inline RecoveryForm Recovery;

}  // namespace tessaryn

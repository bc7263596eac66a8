// One level of undo and one of redo, as snapshots of the whole document.
#pragma once

namespace tessaryn {

inline bool ProofChanged = false;  // the document differs from its file

// To be called ahead of every change: takes the snapshot and marks the document as changed. A proof
// without statements is not copied, so that its first statement can't be undone.
void BackUpUndo();

// Commands. Each can only be reached while its controls are enabled; each marks the document as
// changed.
void Undo();
void Redo();

// The enabled state of the four controls is the only record of what can be done.
void SetUndoRedo(bool canUndo, bool canRedo);

void ResetUndo();

}  // namespace tessaryn

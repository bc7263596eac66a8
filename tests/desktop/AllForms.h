// The forms that the window shows.
#pragma once

#include "axioms/InductionForm.h"
#include "axioms/SubsetFrm.h"
#include "editing/Comment.h"
#include "editing/EditCaption.h"
#include "editing/Find.h"
#include "entry/MyInputBox.h"
#include "entry/TestParser.h"
#include "entry/Warning.h"
#include "mainwindow/Proof.h"
#include "output/AboutTessaryn.h"
#include "output/PrintProof.h"
#include "output/Recovery.h"
#include "output/SaveChanges.h"
#include "output/SelectDir.h"
#include "output/StartUp.h"
#include "output/Tips.h"
#include "rules/Generalize.h"
#include "rules/Substitution.h"

namespace tessaryn {

inline Form* const AllForms[] = {
    &Proof,         &TestParser,    &MyInputBox, &Generalize,  &Substitution, &SubsetFrm,
    &InductionForm, &SaveChanges,   &Recovery,   &PrintProof,  &SelectDir,    &StartUp,
    &Tips,          &AboutTessaryn, &Comment,    &EditCaption, &Find,         &Warning};

}  // namespace tessaryn

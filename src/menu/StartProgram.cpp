#include "menu/StartProgram.h"

#include "axioms/InductionForm.h"
#include "axioms/SubsetFrm.h"
#include "document/Document.h"
#include "document/Invariants.h"
#include "editing/Comment.h"
#include "editing/EditCaption.h"
#include "editing/Find.h"
#include "editing/ToggleConclusion.h"
#include "entry/MyInputBox.h"
#include "entry/TermChecks.h"
#include "entry/TestParser.h"
#include "entry/Warning.h"
#include "expr/Expression.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"
#include "menu/MainWindow.h"
#include "output/AboutTessaryn.h"
#include "output/PrintProof.h"
#include "output/Printing.h"
#include "output/Recovery.h"
#include "output/SaveChanges.h"
#include "output/SavingOver.h"
#include "output/SelectDir.h"
#include "output/Settings.h"
#include "output/StartUp.h"
#include "output/Tips.h"
#include "rules/Generalize.h"
#include "rules/Substitution.h"
#include "rules/modConclusion.h"
#include "view/Display.h"
#include "view/InsertMode.h"
#include "view/TextExchange.h"
#include "view/Undo.h"

namespace tessaryn {

void StartProgram() {
    ForgetQuestions();
    FormsShown = 0;
    FailureMessage = UnexpectedFailure;
    InHand = Second = {};
    RuleMode = Arg1Pending = Arg2Pending = 0;
    SpecName.clear();
    BoundVarName.clear();
    FirstClick = ArbOrLeft = OperationCancelled = EditingIntro = false;
    CommentLine = 0;
    ProofFileName.clear();
    SeenProofFile = {};
    AppPath.clear();
    ForgetCopies();
    BoxUndoText.clear();
    ClipLength = 0;
    OpenFollows = RecentPicked = false;
    RecentName.clear();
    DefaultDir.clear();
    StmtFontSize = 12;
    RuleFontSize = 10;
    ClickedNumber = ToggledNumber = 0;
    FindString.clear();
    FindPos = 0;
    InsertMode = false;
    InsertLine = 0;
    ClearDocument();
    ResetDisplay();
    ResetUndo();
    ResetConclusion();
    ResetTermChecks();
    ResetDocumentChecks();
    ResetPrinting();
    GenExpression.clear();
    GenParseTable.assign(1, {});
    SubsetOf = {};
    SubstEquation.clear();
    SubstSource.clear();
    SubstTarget.clear();
    SubstTargetTable.assign(1, {});
    Restart(Proof);
    FillMainWindow();
    Restart(TestParser);
    Restart(MyInputBox);
    Restart(Generalize);
    Restart(Substitution);
    Restart(SubsetFrm);
    Restart(InductionForm);
    Restart(SaveChanges);
    Restart(Recovery);
    Restart(PrintProof);
    Restart(SelectDir);
    Restart(StartUp);
    Restart(Tips);
    Restart(AboutTessaryn);
    Restart(Comment);
    Restart(EditCaption);
    Restart(Find);
    Restart(Warning);
    Restart(WorkArea);
}

}  // namespace tessaryn

// The axioms of set theory and arithmetic, as they are written into a proof. Nothing of either is
// built into the rules.
//
// A line break (CR LF) ahead of a connective stays in the statement; any other goes when it is
// written.
#pragma once

#include <span>

namespace tessaryn {

// --- schemes: one axiom for each number n that the user enters

// In a text, {...} stands for its content repeated with 2 to n in the place of #: for n = 3,
// "a1{,a#}" is "a1,a2,a3" and "Set{'}" is "Set''".
struct AxiomScheme {
    int least;  // the smallest n
    const char* text;
    const char* textOfOne;  // for n = 1 where that has a form of its own; nullptr if not
    const char* refusal = "Invalid number";  // for an n below the least
};

inline constexpr int MaxAxiomOrder = 99;

inline constexpr AxiomScheme CartesianProductScheme = {
    2,
    "ALL(a1):{ALL(a#):}[Set(a1){& Set(a#)}=>\r\n"
    "EXIST(b):[Set{'}(b)&ALL(c1):{ALL(c#):}[(c1{,c#})@b<=>c1@a1{&c#@a#}]]]",
    nullptr};

inline constexpr AxiomScheme PowerSetScheme = {
    1,
    "ALL(a):[Set{'}(a)=>EXIST(b):[Set(b)\r\n"
    "& ALL(c):[c@b<=> Set{'}(c)&ALL(d1):{ALL(d#):}[(d1{,d#})@c=>(d1{,d#})@a]]]]",
    "ALL(a):[Set(a)=>EXIST(b):[Set(b)\r\n"
    "& ALL(c):[c@b<=> Set(c)&ALL(d):[d@c=>d@a]]]]"};

inline constexpr AxiomScheme SetEqualityScheme = {
    1,
    "ALL(a):ALL(b):[Set{'}(a)&Set{'}(b)=>[a=b\r\n"
    "<=>ALL(c1):{ALL(c#):}[(c1{,c#})@a<=>(c1{,c#})@b]]]",
    "ALL(a):ALL(b):[Set(a)&Set(b)=>[a=b<=>ALL(c):[c@a<=>c@b]]]"};

inline constexpr AxiomScheme NtupleEqualityScheme = {
    2,
    "ALL(a1):{ALL(a#):}ALL(b1):{ALL(b#):}[(a1{,a#})=(b1{,b#})\r\n"
    "<=>a1=b1{&a#=b#}]",
    nullptr, "Invalid number. Must be 2 or more."};

inline constexpr AxiomScheme FunctionExistenceScheme = {
    1,
    "ALL(dom):ALL(cod):ALL(gra):[Set{'}(dom) & Set(cod) & Set'{'}(gra)\r\n"
    "=>[ALL(a1):{ALL(a#):}ALL(b):[(a1{,a#},b) @ gra => (a1{,a#})@dom & b@cod]\r\n"
    "& ALL(a1):{ALL(a#):}[(a1{,a#})@dom => EXIST(b):[b @ cod & (a1 {,a#},b) @ gra]]\r\n"
    "&ALL(a1):{ALL(a#):}ALL(b1):ALL(b2):[(a1{,a#})@dom & b1@cod & b2@cod\r\n"
    "=>[(a1{,a#},b1)@gra & (a1{,a#},b2)@gra => b1=b2]]\r\n"
    "=> EXIST(fun):[Function(fun,dom,cod) &ALL(a1):{ALL(a#):}ALL(b): [(a1{,a#})@dom & b@cod\r\n"
    "=> [fun(a1{,a#})=b <=> (a1{,a#},b)@gra]]]]]",
    nullptr};

inline constexpr AxiomScheme FunctionSpaceScheme = {
    1,
    "ALL(dom):ALL(cod):[Set{'}(dom) & Set(cod)\r\n"
    "=> EXIST(fsp):[Set(fsp) & ALL(f):[f@fsp <=> Function(f,dom,cod) &"
    "ALL(a1):{ALL(a#):}[(a1{,a#})@dom => f(a1{,a#})@cod]]]]",
    nullptr};

inline constexpr AxiomScheme FunctionEqualityScheme = {
    1,
    "ALL(dom):ALL(cod):ALL(f1):ALL(f2):[Set{'}(dom) & Set(cod)\r\n"
    "&Function(f1,dom,cod) & Function(f2,dom,cod)\r\n"
    "=>[f1=f2 <=>ALL(a1):{ALL(a#):}[(a1{,a#})@dom => f1(a1{,a#})=f2(a1{,a#})]]]",
    "ALL(dom):ALL(cod):ALL(f1):ALL(f2):[Set(dom) & Set(cod)\r\n"
    "& Function(f1,dom,cod)& Function(f2,dom,cod)\r\n"
    "=>[f1=f2 <=> ALL(a):[a @ dom => f1(a)=f2(a)]]] "};

// --- single axioms

inline constexpr const char* PairwiseUnion =
    "ALL(a):ALL(b):[Set(a) & Set(b) => EXIST(c):[Set(c) & ALL(d):[d @ c <=> d @ a | d @ b]]]";

inline constexpr const char* ArbitraryUnion =
    "ALL(f):[Set(f) & ALL(a):[a @ f => Set(a)]\r\n"
    "=> EXIST(a):[Set(a) & ALL(b):[b @ a <=> EXIST(c):[c @ f & b @ c]]]]";

inline constexpr const char* AxiomOfChoice =
    "ALL(f):[Set(f) & ALL(a):[a @ f => Set(a) & EXIST(b):b @ a]\r\n"
    "=> EXIST(c):ALL(a):[a @ f => c(a) @ a]]";

// --- groups of axioms about names of their own, which the proof must not use for anything else

struct ReservedName {
    const char* name;
    const char* message;  // ahead of the number of the line that uses it
};

struct AxiomGroup {
    const char* premiseMessage;
    std::span<const ReservedName> names;
    std::span<const char* const> texts;
};

inline constexpr ReservedName NumberNames[] = {
    {"n", "Number Axioms: Variable 'n' was previously introduced on line "},
    {"1", "Number Axioms: '1' was previously introduced on line "},
};
inline constexpr const char* NumberTexts[] = {
    "Set(n)",
    "1@n",
    "ALL(a):ALL(b):[a@n & b@n => a+b@n]",
    "ALL(a):[a@n => ~a+1=1]",
    "ALL(a):ALL(b):[a@n & b@n & a+1=b+1 => a=b]",
    "ALL(a):ALL(b):[a@n & b@n => a+(b+1)= a+b+1]",
    "ALL(a):[[Set(a) & 1@a & ALL(b):[b@n & b@a => b+1@a]] => ALL(b):[b@n => b@a]]",
};
inline constexpr AxiomGroup NumberAxioms = {
    "Number Axioms: Premise found on previous line. Consider another insertion point for axiom.",
    NumberNames, NumberTexts};

inline constexpr ReservedName GroupNames[] = {
    {"g", "Group Axioms: Variable 'g' was previously introduced on line "},
    {"0", "Group Axioms: '0' was previously introduced on line "},
};
inline constexpr const char* GroupTexts[] = {
    "Set(g)",
    "0@g",
    "ALL(a):ALL(b):[a@g & b@g => a+b@g]",
    "ALL(a):ALL(b):ALL(c):[a@g & b@g & c@g => a+b+c=a+(b+c)]",
    "ALL(a):[a@g => 0+a=a & a+0=a]",
    "ALL(a):[a@g => _a@g]",
    "ALL(a):[a@g => a+_a=0 & _a+a=0]",
};
inline constexpr AxiomGroup GroupAxioms = {
    "Group Axioms: Premise found on previous line. Consider another insertion point for axiom.",
    GroupNames, GroupTexts};

inline constexpr ReservedName RingNames[] = {
    {"r", "Ring Axioms: Variable 'r' was previously introduced on line "},
    {"0", "Ring Axioms: '0' was previously introduced on line "},
    {"1", "Ring Axioms: '1' was previously introduced on line "},
};
inline constexpr const char* RingTexts[] = {
    "Set(r)",
    "0@r",
    "ALL(a):ALL(b):[a@r & b@r => a+b@r]",
    "ALL(a):ALL(b):ALL(c):[a@r & b@r & c@r => a+b+c=a+(b+c)]",
    "ALL(a):[a@r => a+0=a & 0+a=a]",
    "ALL(a):[a@r => _a@r]",
    "ALL(a):[a@r => a+_a=0 & _a+a=0]",
    "ALL(a):ALL(b):[a@r & b@r => a+b=b+a]",
    "1 @ r",
    "ALL(a):ALL(b):[a@r & b@r => a*b@r]",
    "ALL(a):ALL(b):ALL(c):[a@r & b@r & c@r => a*b*c=a*(b*c)]",
    "ALL(a):[a@ r => a*1=a & 1*a=a]",
    "ALL(a):ALL(b):ALL(c):[a@r & b@r & c@r => a*(b+c)=a*b+a*c & (b+c)*a=b*a+c*a]",
};
inline constexpr AxiomGroup RingAxioms = {
    "Ring Axioms: Premise found on previous line. Consider another insertion point for axiom.",
    RingNames, RingTexts};

// --- definitions of the operators on the numbers

// What an active line must have introduced. Axioms and open premises count.
enum class Needs {
    N,                  // n
    NAndOne,            // n and 1, not necessarily in one line
    NAndOneInPremises,  // the same, where only open premises count
};

struct OperatorDefinition {
    Needs needs;
    const char* refusal;
    const char* text;
};

inline constexpr OperatorDefinition AdditionDefinition = {
    Needs::NAndOneInPremises, "+ Def: No reference to n or 1 in a previous active premise",
    "ALL(a):ALL(b):[a@n & b@n => a+b@n]\r\n"
    "& ALL(a):[a@n => a+1=next(a)]\r\n"
    "& ALL(a):ALL(b):[a@n & b@n => a+next(b)=next(a+b)]"};

inline constexpr OperatorDefinition SubtractionDefinition = {
    Needs::N, "Define Subtraction (-): No reference to n in a previous axiom or active premise",
    "ALL(a):ALL(b):ALL(c):[a@n & b@n & c@n => [a-b=c <=> a=b+c]]"};

inline constexpr OperatorDefinition MultiplicationDefinition = {
    Needs::NAndOne,
    "Define Multiplication (*) : No reference to n or 1 in a previous axiom or active premise",
    "ALL(a):ALL(b):[a@n & b@n => a*b@n]\r\n"
    "& ALL(a):[a@n => a*1=a]\r\n"
    "& ALL(a):ALL(b):[a@n & b@n => a*(b+1)=a*b+a]"};

inline constexpr OperatorDefinition DivisionDefinition = {
    Needs::N, "Define Division (/): No reference to n in a previous axiom or active premise",
    "ALL(a):ALL(b):ALL(c):[a@n & b@n & c@n => [a/b=c <=> a=b*c]]"};

inline constexpr OperatorDefinition ExponentDefinition = {
    Needs::NAndOne,
    "Define Exponentiation (^) : No reference to n or 1 in a previous axiom or active premise",
    "ALL(a):ALL(b):[a@n & b@n => a^b@n]\r\n"
    "& ALL(a):[a@n => a^1=a]\r\n"
    "& ALL(a):ALL(b):[a@n & b@n => a^(b+1)=a^b*a]"};

inline constexpr OperatorDefinition LessThanDefinition = {
    Needs::N, "Define Less-Than (<): No reference to n in a previous axiom or active premise",
    "ALL(a):ALL(b):[a@n & b@n => [a<b <=> EXIST(c):[c@n & a+c=b]]]"};

inline constexpr OperatorDefinition GreaterThanDefinition = {
    Needs::N, "Define Greater-Than (>): No reference to n in a previous axiom or active premise",
    "ALL(a):ALL(b):[a@n & b@n => [a>b <=> EXIST(c):[c@n & b+c=a]]]"};

inline constexpr OperatorDefinition LessThanOrEqualDefinition = {
    Needs::N,
    "Define Less-Than-Or-Equal (>): No reference to n in a previous axiom or active premise",
    "ALL(a):ALL(b):[a@n & b@n => [a<=b <=> a<b | a=b]]"};

inline constexpr OperatorDefinition GreaterThanOrEqualDefinition = {
    Needs::N,
    "Define Greater-Than-Or-Equal (>): No reference to n in a previous axiom or active premise",
    "ALL(a):ALL(b):[a@n & b@n => [a>=b <=> a>b | a=b]]"};

}  // namespace tessaryn

#include "check/SchemeTexts.h"

#include <initializer_list>

namespace tessaryn::check {
namespace {

// "a1", "a2" ... with `between` ahead of each but the first, and what stands ahead of and behind
// the number.
std::string Each(int n, std::string_view ahead, std::string_view behind,
                 std::string_view between = "") {
    std::string all;
    for (int i = 1; i <= n; ++i) {
        if (i > 1) all += between;
        all += std::string(ahead) + std::to_string(i) + std::string(behind);
    }
    return all;
}

std::string Alls(char letter, int n) {
    return Each(n, std::string("ALL(") + letter, "):");
}
std::string List(char letter, int n) {
    return Each(n, std::string(1, letter), "", ",");
}
std::string Tuple(char letter, int n) {
    return "(" + List(letter, n) + ")";
}

// The predicate of sets of order n.
std::string Set(int n) {
    return "Set" + std::string(static_cast<std::size_t>(n - 1), '\'');
}

std::string CartesianProduct(int n) {
    std::string members;
    for (int i = 1; i <= n; ++i) {
        const std::string k = std::to_string(i);
        members += (i > 1 ? " & c" : "c") + k + " @ a" + k;
    }
    return Alls('a', n) + "[" + Each(n, "Set(a", ")", " & ") + " => EXIST(b):[" + Set(n) +
           "(b) & " + Alls('c', n) + "[" + Tuple('c', n) + " @ b <=> " + members + "]]]";
}

std::string PowerSet(int n) {
    const std::string member = Tuple('d', n);
    return "ALL(a):[" + Set(n) + "(a) => EXIST(b):[Set(b) & ALL(c):[c @ b <=> " + Set(n) +
           "(c) & " + Alls('d', n) + "[" + member + " @ c => " + member + " @ a]]]]";
}

std::string SetEquality(int n) {
    const std::string member = Tuple('c', n);
    return "ALL(a):ALL(b):[" + Set(n) + "(a) & " + Set(n) + "(b) => [a=b <=> " + Alls('c', n) +
           "[" + member + " @ a <=> " + member + " @ b]]]";
}

// From a graph to its function: each argument has a value in the graph, and only one.
std::string Function(int n) {
    const std::string alls = Alls('a', n);
    const std::string args = List('a', n);
    const std::string inDomain = "(" + args + ") @ dom";
    const auto inGraph = [&](const std::string& value) {
        return "(" + args + "," + value + ") @ gra";
    };
    return "ALL(dom):ALL(cod):ALL(gra):[" + Set(n) + "(dom) & Set(cod) & " + Set(n + 1) +
           "(gra) => [" + alls + "ALL(b):[" + inGraph("b") + " => " + inDomain + " & b @ cod] & " +
           alls + "[" + inDomain + " => EXIST(b):[b @ cod & " + inGraph("b") + "]] & " + alls +
           "ALL(b1):ALL(b2):[" + inDomain + " & b1 @ cod & b2 @ cod => [" + inGraph("b1") + " & " +
           inGraph("b2") + " => b1=b2]] => EXIST(fun):[Function(fun,dom,cod) & " + alls +
           "ALL(b):[" + inDomain + " & b @ cod => [fun(" + args + ")=b <=> " + inGraph("b") +
           "]]]]]";
}

std::string FunctionSpace(int n) {
    return "ALL(dom):ALL(cod):[" + Set(n) +
           "(dom) & Set(cod) => EXIST(fsp):[Set(fsp) & ALL(f):[f @ fsp <=> Function(f,dom,cod) & " +
           Alls('a', n) + "[" + Tuple('a', n) + " @ dom => f" + Tuple('a', n) + " @ cod]]]]";
}

std::string FunctionEquality(int n) {
    const std::string args = Tuple('a', n);
    return "ALL(dom):ALL(cod):ALL(f1):ALL(f2):[" + Set(n) +
           "(dom) & Set(cod) & Function(f1,dom,cod) & Function(f2,dom,cod) => [f1=f2 <=> " +
           Alls('a', n) + "[" + args + " @ dom => f1" + args + "=f2" + args + "]]]";
}

}  // namespace

std::string SetAxiomText(Rule rule, int n) {
    switch (rule) {
        case Rule::CartProd:
            return n < 2 ? "" : CartesianProduct(n);
        case Rule::PowerSet:
            return PowerSet(n);
        case Rule::SetEquality:
            return SetEquality(n);
        case Rule::Function:
            return Function(n);
        case Rule::FnSpace:
            return FunctionSpace(n);
        case Rule::FnEquality:
            return FunctionEquality(n);
        default:
            break;
    }
    if (n > 1) return "";
    switch (rule) {
        case Rule::PwUnion:
            return "ALL(a):ALL(b):[Set(a) & Set(b) => EXIST(c):[Set(c) & "
                   "ALL(d):[d @ c <=> d @ a | d @ b]]]";
        case Rule::ArbUnion:
            return "ALL(f):[Set(f) & ALL(a):[a @ f => Set(a)] => EXIST(a):[Set(a) & "
                   "ALL(b):[b @ a <=> EXIST(c):[c @ f & b @ c]]]]";
        case Rule::Choice:
            return "ALL(f):[Set(f) & ALL(a):[a @ f => Set(a) & EXIST(b):b @ a] => "
                   "EXIST(c):ALL(a):[a @ f => c(a) @ a]]";
        default:
            return "";
    }
}

const std::vector<DefinitionText>& DefinitionTexts() {
    static const std::vector<DefinitionText> texts = {
        {"+",
         "ALL(a):ALL(b):[a @ n & b @ n => a+b @ n] & ALL(a):[a @ n => a+1=next(a)] & "
         "ALL(a):ALL(b):[a @ n & b @ n => a+next(b)=next(a+b)]"},
        {"-", "ALL(a):ALL(b):ALL(c):[a @ n & b @ n & c @ n => [a-b=c <=> a=b+c]]"},
        {"*",
         "ALL(a):ALL(b):[a @ n & b @ n => a*b @ n] & ALL(a):[a @ n => a*1=a] & "
         "ALL(a):ALL(b):[a @ n & b @ n => a*(b+1)=a*b+a]"},
        {"/", "ALL(a):ALL(b):ALL(c):[a @ n & b @ n & c @ n => [a/b=c <=> a=b*c]]"},
        {"^",
         "ALL(a):ALL(b):[a @ n & b @ n => a^b @ n] & ALL(a):[a @ n => a^1=a] & "
         "ALL(a):ALL(b):[a @ n & b @ n => a^(b+1)=a^b*a]"},
        {"<", "ALL(a):ALL(b):[a @ n & b @ n => [a<b <=> EXIST(c):[c @ n & a+c=b]]]"},
        {">", "ALL(a):ALL(b):[a @ n & b @ n => [a>b <=> EXIST(c):[c @ n & b+c=a]]]"},
        {"<=", "ALL(a):ALL(b):[a @ n & b @ n => [a<=b <=> a<b | a=b]]"},
        {">=", "ALL(a):ALL(b):[a @ n & b @ n => [a>=b <=> a>b | a=b]]"},
    };
    return texts;
}

const std::vector<AxiomGroup>& AxiomGroups() {
    static const std::vector<AxiomGroup> groups = {
        {"number axiom",
         {"Set(n)", "1 @ n", "ALL(a):ALL(b):[a @ n & b @ n => a+b @ n]", "ALL(a):[a @ n => ~a+1=1]",
          "ALL(a):ALL(b):[a @ n & b @ n & a+1=b+1 => a=b]",
          "ALL(a):ALL(b):[a @ n & b @ n => a+(b+1)=a+b+1]",
          ("ALL(a):[Set(a) & 1 @ a & ALL(b):[b @ n & b @ a => b+1 @ a] => "
           "ALL(b):[b @ n => b @ a]]")}},
        {"group axiom",
         {"Set(g)", "0 @ g", "ALL(a):ALL(b):[a @ g & b @ g => a+b @ g]",
          "ALL(a):ALL(b):ALL(c):[a @ g & b @ g & c @ g => a+b+c=a+(b+c)]",
          "ALL(a):[a @ g => 0+a=a & a+0=a]", "ALL(a):[a @ g => _a @ g]",
          "ALL(a):[a @ g => a+_a=0 & _a+a=0]"}},
        {"ring axiom",
         {"Set(r)", "0 @ r", "ALL(a):ALL(b):[a @ r & b @ r => a+b @ r]",
          "ALL(a):ALL(b):ALL(c):[a @ r & b @ r & c @ r => a+b+c=a+(b+c)]",
          "ALL(a):[a @ r => a+0=a & 0+a=a]", "ALL(a):[a @ r => _a @ r]",
          "ALL(a):[a @ r => a+_a=0 & _a+a=0]", "ALL(a):ALL(b):[a @ r & b @ r => a+b=b+a]", "1 @ r",
          "ALL(a):ALL(b):[a @ r & b @ r => a*b @ r]",
          "ALL(a):ALL(b):ALL(c):[a @ r & b @ r & c @ r => a*b*c=a*(b*c)]",
          "ALL(a):[a @ r => a*1=a & 1*a=a]",
          "ALL(a):ALL(b):ALL(c):[a @ r & b @ r & c @ r => a*(b+c)=a*b+a*c & (b+c)*a=b*a+c*a]"}},
    };
    return groups;
}

}  // namespace tessaryn::check

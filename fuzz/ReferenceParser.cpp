#include "ReferenceParser.h"

#include <set>
#include <stdexcept>

#include "expr/Parse.h"
#include "text/Utf8.h"

namespace tessaryn {

namespace {

const std::string lowerStart = "0123456789abcdefghijklmnopqrstuvwxyz";
const std::string upperStart = "ABCDEFGHIJKLMNOPQRSTUVWXYZ";

bool In(char c, const std::string& characters) {
    return characters.find(c) != std::string::npos;
}

struct Failure {
    std::string message;
    int position;
};

struct Reference {
    std::string source;
    TokenList T = TokenList(1);
    NodeList N = NodeList(1);
    std::string error;
    int errorPos = 0;

    int last() const { return static_cast<int>(T.size()) - 1; }
    int lastNode() const { return static_cast<int>(N.size()) - 1; }
    const std::string& tok(int i) const { return T.at(i).Token; }
    int TPtr(int i) const { return T.at(i).TPtr; }
    int DPtr(int i) const { return T.at(i).DPtr; }
    int Pos(int i) const { return T.at(i).Position; }
    int Rule(int i) const { return N.at(DPtr(i)).Rule; }
    bool opening(int i) const { return tok(i) == "(" || tok(i) == "["; }
    bool closing(int i) const { return tok(i) == ")" || tok(i) == "]"; }
    bool quantifier(int i) const { return tok(i) == "ALL" || tok(i) == "EXIST"; }
    bool name(int i) const {
        return In(tok(i)[0], lowerStart) || (In(tok(i)[0], upperStart) && !quantifier(i));
    }
    bool validNode(int i) const { return DPtr(i) >= 1 && DPtr(i) <= lastNode(); }

    [[noreturn]] static void stop(const std::string& message, int position) {
        throw Failure{message, position};
    }
    void set(const std::string& message, int position) {
        error = message;
        errorPos = position;
    }

    void Lex() {
        const std::string continuation = lowerStart + upperStart + "'";
        if (source.find_first_not_of(' ') == std::string::npos) stop("17. No expression found.", 0);
        size_t i = 0;
        while (i < source.size()) {
            const std::string rest = source.substr(i);
            const char c = rest[0];
            std::string token(1, c);
            if (In(c, lowerStart) || In(c, upperStart)) {
                const std::string more = In(c, lowerStart) ? continuation + "#" : continuation;
                token = rest.substr(0, rest.find_first_not_of(more));
            } else if (rest.starts_with("<=>")) {
                token = "<=>";
            } else if (std::set<std::string>{"=>", "<=", ">=", "&&", "||"}.contains(
                           rest.substr(0, 2))) {
                token = rest.substr(0, 2);
            } else if (!In(c, " \t\n\r") && !In(c, "()[]+-*/^_,~`:@=<>&|")) {
                stop("18. Illegal character " + rest.substr(0, SequenceLength(rest, 0)),
                     static_cast<int>(i) + 1);
            }
            const size_t length = token.size();
            if (token == "all" || token == "All") token = "ALL";
            if (token == "exist" || token == "Exist") token = "EXIST";
            if (!In(c, " \t\n\r")) T.push_back({token, static_cast<int>(i) + 1});
            i += length;
        }
        if (last() == 0) stop("19. Expecting expression", 0);
        Link("(", ")");
        Link("[", "]");
        for (int k = 1; k <= last(); k++)
            if ((opening(k) || closing(k)) && TPtr(k) == 0)
                stop("20. Unmatched bracket(s)", Pos(k));
    }

    void Link(const char* open, const char* close) {
        for (int k = 1; k <= last(); k++) {
            if (tok(k) != open) continue;
            int counter = 1;
            for (int j = k + 1; j <= last() && counter > 0; j++) {
                if (tok(j) == open) counter++;
                if (tok(j) == close && --counter == 0) {
                    T[k].TPtr = j;
                    T[j].TPtr = k;
                }
            }
        }
    }

    void Insert(int L, int R) {
        if (last() + 2 > MaxTokens) throw std::overflow_error("table");
        for (TokenRec& token : T) {
            if (token.TPtr > R) {
                token.TPtr += 2;
            } else if (token.TPtr >= L) {
                token.TPtr += 1;
            }
        }
        T.emplace(T.begin() + R + 1, ")", 0)->TPtr = L;
        T.emplace(T.begin() + L, "(", 0)->TPtr = R + 2;
    }

    void WrapAtoms() {
        for (int i = 1; i <= last(); i++) {
            if (!name(i)) continue;
            int node = 1;
            while (node <= lastNode() && N[node].Name != tok(i)) node++;
            if (node > lastNode()) N.push_back({In(tok(i)[0], upperStart) ? 25 : 1, tok(i)});
            Insert(i, i);
            T[i].DPtr = T[i + 2].DPtr = node;
            i += 2;
        }
    }

    void BracketFunctions() {
        for (int i = 1; i <= last(); i++) {
            if (!name(i) || i + 2 >= last() || tok(i + 2) != "(" || Pos(i + 2) == 0) continue;
            Insert(i - 1, TPtr(i + 2));
            i++;
        }
    }

    void BracketOperators(const std::string& op1, const std::string& op2, int arity,
                          bool leftToRight) {
        for (int i = leftToRight ? 1 : last(); i >= 1 && i <= last();) {
            const std::string op = tok(i);
            if (op != op1 && op != op2) {
                i += leftToRight ? 1 : -1;
                continue;
            }
            const std::string shown = op == "@" ? "<epsilon>" : op;
            int L = i;
            if (arity == 2) {
                if (i < 2) stop("29. No expression on LHS of " + op, Pos(i));
                if (!closing(i - 1)) stop("28. Invalid expression on LHS of " + op, Pos(i));
                L = TPtr(i - 1);
            }
            if (i == last()) stop("31. No expression on RHS of " + shown, Pos(i));
            if (!opening(i + 1)) stop("30. Invalid expression on RHS of " + shown, Pos(i));
            Insert(L, TPtr(i + 1));
            if (leftToRight) i += 2;
        }
    }

    void BracketPrefixes() {
        for (int k = last(); k >= 1; k--) {
            if (tok(k) == "~") {
                if (k + 2 > last()) stop("15. Expecting logical expression on RHS of ~", Pos(k));
                if (!opening(k + 1)) stop("14. Expecting logical expression on RHS of ~", Pos(k));
                Insert(k, TPtr(k + 1));
            } else if (quantifier(k)) {
                const std::string message = "15. Invalid expression on RHS of quantifier";
                int written = k + 1;
                while (written <= last() && Pos(written) == 0) written++;
                if (written > last() || !(opening(written) || closing(written)))
                    stop(message, Pos(k));
                const int body = TPtr(k + 1) + 2;
                if (body > last()) stop(message, Pos(k));
                const std::string colon = tok(body - 1);
                if (colon == "&&" || colon == "||" || colon == "`") stop(message, Pos(k));
                if (TPtr(body) < k) stop(message, Pos(k));
                Insert(k, TPtr(body));
            }
        }
    }

    // False if the parse ends here; some messages let it go on to the final check.
    bool Walk() {
        for (int k = 1; k <= last(); k++) {
            if (!closing(k)) continue;
            const int o = TPtr(k);
            if (o == k - 1) {
                set("24. Empty brackets. Expecting expression.", Pos(k - 1));
                return false;
            }
            if (closing(k - 1) && TPtr(k - 1) == o + 1) {
                T[k].DPtr = T[o].DPtr = DPtr(k - 1);
                continue;
            }
            if (DPtr(k) > 0) continue;
            if (quantifier(o + 1)) {
                BuildQuantifier(k);
                continue;
            }
            if (tok(o + 1) == "_") {
                BuildANeg(k);
            } else if (tok(o + 1) == "~") {
                BuildLNeg(k);
            } else if (!validNode(o + 1) || o + 4 > last()) {
                set("25. Expected algebraic expression", 0);
                continue;
            } else if (tok(o + 4) == "(" && (Rule(o + 1) == 1 || Rule(o + 1) == 25) &&
                       Pos(o + 4) > 0 && DPtr(o + 4) > 0 && TPtr(o + 1) == o + 3) {
                BuildFunc(k);
            } else {
                BuildBinary(k);
            }
            if (!error.empty()) return false;
        }
        return true;
    }

    void FinalCheck() {
        if (lastNode() == 0) return set("26. Expecting expression.", 0);
        for (int i = 1; i <= last(); i++) {
            if (!In(tok(i)[0], lowerStart)) continue;
            for (int j = 1; j <= last(); j++)
                if (tok(j) == tok(i) && T[j].Bound != T[i].Bound)
                    return set("27. Inconsistent usage of variable " + tok(i), Pos(i));
        }
    }

    void AddNode(int k, int rule, int ptr1, int ptr2) {
        N.push_back({rule, "", ptr1, ptr2});
        T[k].DPtr = T[TPtr(k)].DPtr = lastNode();
    }

    void BuildANeg(int k) {
        const int o = TPtr(k);
        if (o + 2 > last()) return set("1. Expecting algebraic expression after _", Pos(o + 1));
        if (DPtr(o + 2) < 1) return set("2. Expecting algebraic expression after _", Pos(o + 1));
        if (!IsAlgebraicOrNtuple(Rule(o + 2)))
            return set("1. Expecting algebraic expression or n-tuple after _", Pos(o + 1));
        AddNode(k, 3, DPtr(o + 2), 0);
    }

    void BuildLNeg(int k) {
        const int o = TPtr(k);
        if (DPtr(o + 2) < 1) return set("22. Expecting logical expression after ~", Pos(o + 1));
        if (!IsLogical(Rule(o + 2)))
            return set("21. Expecting logicial expression after ~", Pos(o + 1));
        AddNode(k, 15, DPtr(o + 2), 0);
    }

    void BuildQuantifier(int k) {
        const int o = TPtr(k);
        const std::string q = tok(o + 1);
        const std::string message = "3. Invalid expression on RHS of " + q;
        if (o + 2 > last()) return set(message, Pos(o + 1));
        if (Rule(o + 2) != 1) return set("5. Expecting variable", Pos(o + 1));
        if (o + 8 > last() || !validNode(o + 8) || !IsLogical(Rule(o + 8)))
            return set(message, Pos(o + 1));
        const std::string name = N[DPtr(o + 2)].Name;
        for (int m = o; m <= k; m++) {
            if (tok(m) != name) continue;
            if (T[m].Bound)
                return set("4. Variable " + name + " already quantified within its scope.",
                           Pos(o + 1));
            T[m].Bound = true;
        }
        AddNode(k, q == "ALL" ? 20 : 21, DPtr(o + 2), DPtr(o + 8));
    }

    void BuildBinary(int k) {
        const int p = TPtr(TPtr(k) + 1) + 1;
        int rule = 0;
        for (const int candidate : {8, 2, 4, 5, 6, 7, 10, 11, 12, 13, 14, 16, 17, 18, 19, 22})
            if (tok(p) == NodeOp[candidate]) rule = candidate;
        if (rule == 0) return set("7. Expecting binary operator", Pos(p));
        const std::string d = rule == 16 ? "&&" : rule == 22 ? "<epsilon>" : tok(p);
        if (DPtr(p - 1) == 0 || DPtr(p + 1) == 0)
            return set("8. Expecting expression on both sides of " + d, Pos(p));
        const bool logical = rule >= 16 && rule <= 19;
        const int left = Rule(p - 1);
        const int right = Rule(p + 1);
        if (rule == 8) {
            if (!IsAlgebraicOrNtuple(left))
                return set("10. Expecting algebraic expression before " + d, Pos(p));
        } else if (rule == 10) {
            if (!IsAlgebraic(left))
                return set("11. Expecting algebraic expression before = ", Pos(p));
        } else if (logical) {
            if (!IsLogical(left))
                return set("11. Expecting logical expression before " + d, Pos(p));
        } else if (rule == 22) {
            const bool written = tok(p - 1) == ")" && Pos(p - 1) != 0;
            if (!IsAlgebraic(left) && !(left == 8 && written))
                set("10. Expecting algebraic expression before " + d, Pos(p));
            if (!IsAlgebraicOrNtuple(left)) return;
        } else if (!IsAlgebraic(left)) {
            return set("10. Expecting algebracic expression before " + d, Pos(p));
        }
        if (logical && !IsLogical(right))
            return set("12. Expecting logical expression after " + d, Pos(p));
        if (!logical && !IsAlgebraic(right))
            return set("12. Expecting algebraic expression after " + d, Pos(p));
        AddNode(k, rule, DPtr(p - 1), DPtr(p + 1));
    }

    void BuildFunc(int k) {
        const int o = TPtr(k);
        if (o + 2 > last()) return set("16. Expecting algebraic expression after ", Pos(k));
        if (!validNode(o + 1) || !validNode(o + 4) || !IsAlgebraicOrNtuple(Rule(o + 4)))
            return set("16. Expecting algebraic expression after " + tok(o + 2), Pos(o + 2));
        AddNode(k, Rule(o + 1) == 1 ? 9 : 26, DPtr(o + 1), DPtr(o + 4));
    }

    void Run() {
        if (source.size() > MaxSourceLength) throw std::overflow_error("source");
        Lex();
        WrapAtoms();
        BracketFunctions();
        BracketOperators("^", "^", 2, true);
        BracketOperators("_", "_", 1, false);
        BracketOperators("*", "/", 2, true);
        BracketOperators("+", "-", 2, true);
        BracketOperators(",", ",", 2, true);
        BracketOperators("=", "=", 2, true);
        BracketOperators("<", ">", 2, true);
        BracketOperators("<=", ">=", 2, true);
        BracketOperators("@", "@", 2, true);
        BracketPrefixes();
        BracketOperators("&", "&", 2, true);
        BracketOperators("|", "|", 2, true);
        BracketOperators("=>", "=>", 2, true);
        BracketOperators("<=>", "<=>", 2, true);
        if (last() > 1 && TPtr(1) != last())
            stop("23. Expecting expression. May be a missing operator.", 0);
        if (Walk()) FinalCheck();
    }
};

}  // namespace

Expression ReferenceParse(const std::string& text) {
    Reference r;
    r.source = text;
    try {
        r.Run();
    } catch (const Failure& failure) {
        r.set(failure.message, failure.position);
    } catch (const std::exception&) {  // an index out of range, a table beyond its limit
        r.set("Unable to parse expression", 0);
    }
    return {text, r.T, r.N, r.error, r.errorPos};
}

}  // namespace tessaryn

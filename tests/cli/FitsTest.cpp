// What `fits` tells is what the clicks write.
#include "cli/Fits.h"

#include <gtest/gtest.h>

#include <map>
#include <nlohmann/json.hpp>
#include <set>
#include <sstream>

#include "Workbench.h"
#include "document/Document.h"

namespace tessaryn {
namespace {

const std::map<std::string, std::string> MenuItems = {
    {"Split", "optSplit"},       {"Copy", "optCopyStatement"},    {"Quant", "optQuantifierSwitch"},
    {"Detach", "optDetachment"}, {"Rem DNeg", "optDNegRemove"},   {"Iff-And", "optIff"},
    {"DeMorgan", "optDeMorgan"}, {"Contra", "optContrapositive"}, {"Sym", "optSymmetry"},
    {"Imply-And", "optImplies"}, {"Imply-Or", "optImliesOr"},
};

// The clicks of a fit, from the document as it is, and Undo.
std::string ScriptOf(const nlohmann::json& fit, int count) {
    const std::string line = std::to_string(fit["line"].get<int>());
    std::string script = "choose " + MenuItems.at(fit["rule"]) + "\nclick " + line;
    if (fit.contains("sign")) {
        script += " " + Quoted(fit["sign"]) + " " + std::to_string(fit["place"].get<int>());
    }
    if (fit.contains("second")) script += "\nclick " + std::to_string(fit["second"].get<int>());
    for (const std::string text : fit["texts"]) {
        script += "\nexpect line " + std::to_string(++count) + " " + Quoted(text);
    }
    return script + "\nexpect count " + std::to_string(count) + "\nchoose optUndo\n";
}

TEST(Fits, WhatTheyTellIsWhatTheClicksWrite) {
    const std::string proof = EnterAxiom("ALL(a):[~~P(a) & a=x => [Q <=> R]]") +
                              EnterPremise("[Q => R] & [R => Q]") +
                              EnterPremise("ALL(b):[~~P(b) & b=x => [Q <=> R]] => S | ~T & U");
    ASSERT_EQ(Build(proof), "");
    const int count = StmtCount;
    std::ostringstream out;
    PrintFits(0, out);
    std::set<std::string> rules;
    int fits = 0;
    std::string script = proof;
    std::istringstream lines(out.str());
    for (std::string line; std::getline(lines, line);) {
        const auto fit = nlohmann::json::parse(line);
        rules.insert(fit["rule"]);
        ++fits;
        script += ScriptOf(fit, count);
    }
    EXPECT_EQ(Build(script), "");
    EXPECT_EQ(rules.size(), MenuItems.size());
    EXPECT_EQ(fits, 39);
}

}  // namespace
}  // namespace tessaryn

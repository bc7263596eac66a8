#include "check/WrittenFile.h"

#include <algorithm>
#include <sstream>

#include "document/Bytes.h"
#include "document/Document.h"
#include "document/RuleNames.h"
#include "expr/NameList.h"
#include "expr/Parse.h"
#include "expr/Same.h"

namespace tessaryn {
namespace {

bool IsNumber(const std::string& word) {
    return !word.empty() && word.find_first_not_of("-0123456789") == word.npos;
}

int RuleNumber(const std::string& name) {
    if (IsNumber(name)) return std::stoi(name);
    for (int rule = 1; rule <= RuleCount; ++rule) {
        if (RuleName(rule) == name) return rule;
    }
    return 0;
}

std::string Replaced(std::string text, std::string_view part, std::string_view by) {
    for (std::size_t at = 0; (at = text.find(part, at)) != text.npos; at += by.size()) {
        text.replace(at, part.size(), by);
    }
    return text;
}

}  // namespace

std::string Unescaped(const std::string& text) {
    return Replaced(Replaced(text, "\\n", "\r\n"), "\\t", "\t");
}

namespace {

// "" for text that does not parse.
std::string FreeNames(const std::string& text) {
    const Expression parsed = ParseExpression(text);
    return parsed.error.empty() ? FreeVarsOf(parsed) : "";
}

class Writer {
  public:
    explicit Writer(const WrittenLines& lines) : lines_(lines) {}

    std::string Bytes() {
        for (line_ = 1; line_ <= static_cast<int>(lines_.size()); ++line_) Add();
        ByteWriter file;
        file.Bytes("Tessaryn 1");
        file.Int16(static_cast<int>(lines_.size()));
        file.String("");
        file.Bytes(records_.Take());
        file.String(text_);
        return file.Take();
    }

  private:
    const WrittenLine& Line(int number) const {
        return lines_[static_cast<std::size_t>(number - 1)];
    }
    std::string Field(const std::string& name, const std::string& usual) const {
        const auto given = Line(line_).fields.find(name);
        return given == Line(line_).fields.end() ? usual : given->second;
    }
    // Of a premise that of its Conclusion.
    int Arg1(int number) const {
        const WrittenLine& line = Line(number);
        for (int i = number + 1; line.rule == Rule::Premise && line.arg1 == 0 && Has(i); ++i) {
            if (Line(i).rule == Rule::Conclusion && Line(i).arg1 == number) return i;
        }
        return line.arg1;
    }
    bool Has(int number) const { return number <= static_cast<int>(lines_.size()); }

    int Depth() const {
        int depth = 0;
        for (int i = 1; i <= line_; ++i) {
            if (Line(i).rule == Rule::Premise && line_ < Arg1(i)) ++depth;
        }
        return depth;
    }

    // The names that stand ahead of the innermost premise in a line that is in force.
    std::string RedNames() const {
        std::vector<int> open;
        std::vector<bool> gone(lines_.size() + 1);
        for (int i = 1; i <= line_; ++i) {
            if (Line(i).rule == Rule::Premise) open.push_back(i);
            if (Line(i).rule != Rule::Conclusion || Line(i).arg1 < 1 || Line(i).arg1 > i) continue;
            while (!open.empty() && open.back() >= Line(i).arg1) open.pop_back();
            std::fill(gone.begin() + Line(i).arg1, gone.begin() + i, true);
        }
        std::string reds;
        for (const std::string& name : NamesOf(free_.back())) {
            bool red = open.empty();
            for (int i = 1; !open.empty() && i < open.back(); ++i) {
                red = red || (!gone[static_cast<std::size_t>(i)] &&
                              HoldsName(free_[static_cast<std::size_t>(i)], name));
            }
            if (red) AppendName(reds, name);
        }
        return reds;
    }

    void Add() {
        const WrittenLine& line = Line(line_);
        const int arg1 = Arg1(line_);
        free_.push_back(FreeNames(line.text));
        records_.Int16(line.rule);
        records_.Int16(arg1);
        records_.Int16(line.arg2);
        records_.String(Field("SpecName", ""));
        records_.String(Field("FreeVars", free_.back()));
        records_.String(Field("FixedVars", RedNames()));
        records_.String(Field("SpareVars", ""));
        records_.Bool(true);

        const std::string tabs(static_cast<std::size_t>(Depth()), '\t');
        text_ += Field("Ahead", "");
        Index("StartLine");
        if (!line.comment.empty()) text_ += tabs + line.comment;
        if (line.comment.empty()) records_.Int32(std::stoi(Field("EndUserComment", "0")));
        if (!line.comment.empty()) Index("EndUserComment", -1);
        if (!line.comment.empty()) text_ += "\r\n\r\n";
        text_ += Field("Indent", tabs) + Field("Number", std::to_string(line_)) + '\t';
        Index("StartStmt");
        text_ += Replaced(line.text, "\r\n", Field("Break", "\r\n\t" + tabs));
        Index("EndStmt", -1);
        text_ += Field("Between", "\r\n\t" + tabs);
        Index("StartRule");
        const bool isKnown = IsRuleNumber(line.rule);
        text_ += Field("Annotation", isKnown ? RuleAnnotation(line.rule, arg1, line.arg2) : "?");
        Index("EndRule", -1);
        text_ += "\r\n\r\n" + Field("Behind", "");
        records_.Int32(0);
        records_.Bool(false);
        records_.Int16(0);
        records_.Bool(false);
    }

    // Where the text ends now, and one further.
    void Index(const std::string& field, int shift = 0) {
        const int off = std::stoi(Field(field, "0"));
        records_.Int32(static_cast<int>(text_.size()) + 1 + shift + off);
    }

    const WrittenLines& lines_;
    int line_ = 0;
    std::vector<std::string> free_ = {""};  // by line
    ByteWriter records_;
    std::string text_;
};

}  // namespace

WrittenLine ReadLine(std::string_view notation) {
    WrittenLine line;
    const std::size_t colon = notation.find(": ");
    line.text = Unescaped(std::string(notation.substr(colon + 2)));
    std::istringstream head{std::string(notation.substr(0, colon))};
    std::string rule;
    std::vector<std::string> rest;
    for (std::string word; head >> word;) {
        if (rest.empty() && (rule.empty() || !IsNumber(word))) {
            rule += (rule.empty() ? "" : " ") + word;
        } else {
            rest.push_back(word);
        }
    }
    line.rule = RuleNumber(rule);
    if (!rest.empty() && !IsNumber(rest.back())) {
        line.fields["SpecName"] = rest.back();
        rest.pop_back();
    }
    if (!rest.empty()) line.arg1 = std::stoi(rest[0]);
    if (rest.size() > 1) line.arg2 = std::stoi(rest[1]);
    return line;
}

std::string FileOf(const WrittenLines& lines) {
    return Writer(lines).Bytes();
}

std::string ProofOf(const std::vector<std::string>& notations) {
    WrittenLines lines;
    for (const std::string& notation : notations) lines.push_back(ReadLine(notation));
    return FileOf(lines);
}

WrittenLines OpenProofLines() {
    WrittenLines lines;
    for (int i = 1; i <= StmtCount; ++i) {
        const Statement& record = At(i);
        WrittenLine line{record.Rule, record.Arg1, record.Arg2, StmtText(i), "", {}};
        line.fields = {{"SpecName", record.SpecName},
                       {"FreeVars", record.FreeVars},
                       {"FixedVars", record.FixedVars}};
        lines.push_back(line);
    }
    return lines;
}

}  // namespace tessaryn

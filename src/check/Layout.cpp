#include "check/Layout.h"

#include "check/RuleNames.h"

namespace tessaryn::check {
namespace {

constexpr std::string_view TwoLineEnds = "\r\n\r\n";

// Whether `part` stands at `index`, counted from 1.
bool Stands(std::string_view text, std::string_view part, long long index) {
    return index >= 1 && index <= static_cast<long long>(text.size()) + 1 &&
           text.substr(static_cast<std::size_t>(index - 1)).starts_with(part);
}

std::string Annotation(const Record& record) {
    std::string annotation(RuleName(Rule{record.rule}));
    if (record.rule == static_cast<int>(Rule::Premise)) return annotation;
    if (record.rule == static_cast<int>(Rule::Conclusion)) annotation = "4 " + annotation;
    for (const int line : {record.arg1, record.arg2}) {
        if (line > 0) annotation += ", " + std::to_string(line);
    }
    return annotation;
}

// Where the block has to begin; 0 if what stands ahead of it is wrong.
long long Beginning(const ProofBytes& proof, int line) {
    const auto n = static_cast<std::size_t>(line);
    if (line > 1) return proof.records[n - 1].endRule + 5LL;
    const int start = proof.records[n].startLine;
    return start == 1 || Stands(proof.text, TwoLineEnds, start - 4LL) ? start : 0;
}

}  // namespace

std::string LayoutFault(const ProofBytes& proof, int line, int depth) {
    const Record& record = proof.records[static_cast<std::size_t>(line)];
    const std::string_view text = proof.text;
    const std::string tabs(static_cast<std::size_t>(depth), '\t');
    const auto fault = [line](const std::string& what) {
        return "line " + std::to_string(line) + " " + what;
    };
    std::string misplaced = fault("does not stand where its record says");

    long long at = Beginning(proof, line);
    if (at == 0 || at != record.startLine) return misplaced;
    if (record.endUserComment != 0) {
        if (record.endUserComment < at || !Stands(text, TwoLineEnds, record.endUserComment + 1LL)) {
            return misplaced;
        }
        at = record.endUserComment + 5LL;
    }
    const std::string head = tabs + std::to_string(line) + '\t';
    if (!Stands(text, head, at)) return fault("does not bear its number");
    at += static_cast<long long>(head.size());
    if (at != record.startStmt || record.endStmt < at) return misplaced;
    at = record.endStmt + 1LL;
    const std::string behind = "\r\n\t" + tabs;
    if (!Stands(text, behind, at)) return misplaced;
    at += static_cast<long long>(behind.size());
    const std::string annotation = Annotation(record);
    if (at != record.startRule) return misplaced;
    if (!Stands(text, annotation + std::string(TwoLineEnds), at)) {
        return fault("is annotated otherwise than its record, " + annotation + ", says");
    }
    at += static_cast<long long>(annotation.size());
    if (record.endRule != at - 1) return misplaced;
    const bool isLast = static_cast<std::size_t>(line) + 1 == proof.records.size();
    if (isLast && at + 3 != static_cast<long long>(text.size())) {
        return "text stands behind the last line";
    }
    return "";
}

std::string_view StatementText(const ProofBytes& proof, int line) {
    const Record& record = proof.records[static_cast<std::size_t>(line)];
    return proof.text.substr(static_cast<std::size_t>(record.startStmt - 1),
                             static_cast<std::size_t>(record.endStmt - record.startStmt + 1));
}

}  // namespace tessaryn::check

// The reader of proof files: what docs/file-format.md tells, and nothing of the program's own.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tessaryn::check {

// A statement's record. Lists and indexes are as they stand in the file; what only concerns the
// display (whether the line was shown, its place there, marks, bold numbers) is passed over.
struct Record {
    int rule, arg1, arg2;
    std::string_view specName, freeVars, fixedVars, spareVars;
    int startLine, endUserComment, startStmt, endStmt, startRule, endRule;  // bytes, from 1
};

struct ProofBytes {
    std::vector<Record> records;  // statement 1 is records[1]
    std::string_view text;
    std::string error;  // why it could not be read, "" if it was
};

// The views point into `file`.
ProofBytes ReadProofBytes(std::string_view file);

}  // namespace tessaryn::check

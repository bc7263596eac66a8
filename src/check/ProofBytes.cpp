#include "check/ProofBytes.h"

#include <cstdint>

namespace tessaryn::check {
namespace {

constexpr std::string_view Magic = "Tessaryn 1";

// Takes values from the front of the bytes. After the first that is not there, all are 0 or "".
class Bytes {
  public:
    explicit Bytes(std::string_view bytes) : bytes_(bytes) {}
    bool Short() const { return short_; }

    std::string_view Take(std::size_t length) {
        if (short_ || length > bytes_.size() - at_) {
            short_ = true;
            return {};
        }
        at_ += length;
        return bytes_.substr(at_ - length, length);
    }

    std::uint32_t Number(std::size_t length) {
        std::uint32_t value = 0;
        std::uint32_t unit = 1;
        for (const char c : Take(length)) {
            value += unit * static_cast<unsigned char>(c);
            unit <<= 8;
        }
        return value;
    }
    int Int16() { return static_cast<std::int16_t>(Number(2)); }
    int Int32() { return static_cast<std::int32_t>(Number(4)); }

    std::string_view String() {
        const std::uint32_t length = Number(2);
        return Take(length == 0xFFFF ? Number(4) : length);
    }

  private:
    std::string_view bytes_;
    std::size_t at_ = 0;
    bool short_ = false;
};

Record TakeRecord(Bytes& bytes) {
    Record record{};
    for (int* field : {&record.rule, &record.arg1, &record.arg2}) *field = bytes.Int16();
    for (std::string_view* list :
         {&record.specName, &record.freeVars, &record.fixedVars, &record.spareVars}) {
        *list = bytes.String();
    }
    bytes.Take(2);  // whether it was shown
    for (int* index : {&record.startLine, &record.endUserComment, &record.startStmt,
                       &record.endStmt, &record.startRule, &record.endRule}) {
        *index = bytes.Int32();
    }
    bytes.Take(4 + 2 + 2 + 2);  // its place in the display, two marks, the bold number
    return record;
}

}  // namespace

ProofBytes ReadProofBytes(std::string_view file) {
    ProofBytes proof;
    Bytes bytes(file);
    if (bytes.Take(Magic.size()) != Magic) {
        proof.error = "it is no proof file";
        return proof;
    }
    const int count = bytes.Int16();
    bytes.String();  // the caption
    proof.records.resize(1);
    for (int i = 0; i < count && !bytes.Short(); ++i) proof.records.push_back(TakeRecord(bytes));
    proof.text = bytes.String();
    // Without statements the text is an introduction, with the two line ends behind it.
    const bool ends = proof.text.empty() || proof.text.ends_with("\r\n\r\n");
    if (count == 0 && !ends) proof.error = "its introduction has no end";
    if (count < 0) proof.error = "its number of statements is negative";
    if (bytes.Short()) proof.error = "bytes are missing";
    return proof;
}

}  // namespace tessaryn::check

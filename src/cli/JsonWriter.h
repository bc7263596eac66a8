// JSON as it goes out, value by value: nothing of it is kept.
#pragma once

#include <rapidjson/writer.h>

#include <ostream>
#include <string>
#include <string_view>

namespace tessaryn {

// What a writer writes to: a stream, in large pieces.
struct JsonOutput {
    using Ch = char;
    void Put(char character) {
        piece += character;
        if (piece.size() >= 65536) Flush();
    }
    void Flush() {  // called behind the outermost value
        stream.write(piece.data(), static_cast<std::streamsize>(piece.size()));
        piece.clear();
    }
    std::ostream& stream;
    std::string piece{};
};

class JsonWriter {
  public:
    explicit JsonWriter(std::ostream& out) : output_{out}, writer_(output_) {}

    // Texts must be UTF-8.
    void Value(std::string_view text) {
        writer_.String(text.data(), static_cast<rapidjson::SizeType>(text.size()));
    }
    void Value(const std::string& text) { Value(std::string_view(text)); }
    void Value(const char* text) { Value(std::string_view(text)); }
    void Value(int number) { writer_.Int(number); }
    void Value(std::size_t number) { writer_.Uint64(number); }
    void Value(bool truth) { writer_.Bool(truth); }
    void Null() { writer_.Null(); }

    // Inside an object.
    void Key(std::string_view name) {
        writer_.Key(name.data(), static_cast<rapidjson::SizeType>(name.size()));
    }
    template <class Any>
    void Member(std::string_view name, const Any& value) {
        Key(name);
        Value(value);
    }

    // [VALUE,...]
    template <class... Any>
    void Row(const Any&... values) {
        List([&] { (Value(values), ...); });
    }
    template <class Write>
    void List(Write write) {
        writer_.StartArray();
        write();
        writer_.EndArray();
    }
    // {...}: `write` writes the members.
    template <class Write>
    void Object(Write write) {
        writer_.StartObject();
        write();
        writer_.EndObject();
    }

  private:
    JsonOutput output_;
    rapidjson::Writer<JsonOutput> writer_;
};

}  // namespace tessaryn

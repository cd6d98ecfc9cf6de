#pragma once

#include <functional>
#include <span>
#include <string>

class TextReader;

namespace mapc {

/// How a field is printed in a record.
enum class FieldKind { whole, unsignedWhole, real, flag, word, counted };

/// What else the text of a field names.
enum class FieldRole { plain, command, object, sound, texture };

struct AdditionField {
    const char* name;
    FieldKind kind;
    FieldRole role = FieldRole::plain;
};

/// The layout of one kind of addition behind its type code.
struct AdditionFormat {
    int code;
    const char* word; ///< Script word, or the class's name.
    bool chained;     ///< A flag follows the fields, and behind a 1 the record of the next link.
    std::span<const AdditionField> fields;
};

/// The layout of the addition that a script's keyword makes. Null for an unknown word.
const AdditionFormat* findFormat(const std::string& word);

/// Told of a link, then of each of its fields in order.
struct AdditionVisitor {
    std::function<void(const AdditionFormat&)> link;
    std::function<void(const AdditionField&, const std::string& value)> field;
};

/// Reads one addition with the whole of its chain.
/// @throws std::string "file corrupted"
void visitAddition(TextReader& stream, const AdditionVisitor& visitor);

} // namespace mapc

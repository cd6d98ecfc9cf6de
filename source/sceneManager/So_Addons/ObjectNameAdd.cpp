#include "ObjectNameAdd.h"

#include "TextStream.h"
#include "sceneManager/NameIndex.h"

ObjectNameAdd::ObjectNameAdd(std::string value)
    : CallbackAdd(AdditionType::objectName),
      name(std::move(value)) {}

ObjectNameAdd::ObjectNameAdd(ScriptWords& words) : CallbackAdd(AdditionType::objectName) {
    takeKeyword(words, keyword);
    name = takeWord(words);
    words.clear();
}

ObjectNameAdd::ObjectNameAdd(TextReader& stream) : ObjectNameAdd(readCountedString(stream)) {}

void ObjectNameAdd::setName(std::string value) {
    name = std::move(value);
    NameIndex::forget();
}

void ObjectNameAdd::saveFields(TextWriter& stream) const {
    stream.writeCounted(name);
}

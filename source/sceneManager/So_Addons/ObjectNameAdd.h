#pragma once

#include "CallbackAdd.h"

/// "NAME" name: gives its object the name that scripts and commands find it by. Always the last
/// link of its chain, and mostly the only one; it does nothing when fired.
class ObjectNameAdd : public CallbackAdd {
public:
    static constexpr const char* keyword = "NAME";

    explicit ObjectNameAdd(std::string value);
    /// Drops all words behind the name.
    explicit ObjectNameAdd(ScriptWords& words);
    explicit ObjectNameAdd(TextReader& stream);

    const std::string& getName() const { return name; }
    void setName(std::string value);

protected:
    bool fire(SceneObject*) override { return false; }
    void saveFields(TextWriter& stream) const override;

private:
    std::string name;
};

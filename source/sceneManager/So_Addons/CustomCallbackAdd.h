#pragma once

#include "CallbackAdd.h"

/// A word that is no keyword: runs the command of that name. A word that nobody had entered when
/// the link was built, the empty one among them, does nothing and lets the chain go on.
class CustomCallbackAdd : public CallbackAdd {
public:
    explicit CustomCallbackAdd(ScriptWords& words);
    explicit CustomCallbackAdd(TextReader& stream);

    const std::string& getName() const { return name; }
    bool hasCallback() const { return callback != nullptr; }

protected:
    bool fire(SceneObject* owner) override;
    void saveFields(TextWriter& stream) const override;

private:
    explicit CustomCallbackAdd(std::string word);

    std::string name;
    /// The entry of `callbackTable`, which outlives all links: a command may delete its own link.
    const ScriptCallback* callback;
};

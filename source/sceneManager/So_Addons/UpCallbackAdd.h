#pragma once

#include "CallbackAdd.h"

/// "UP" word: turns the gravity of the first movable object of the scene over. Run twice, it is as
/// before. The word is kept and has no other use.
class UpCallbackAdd : public CallbackAdd {
public:
    static constexpr const char* keyword = "UP";

    explicit UpCallbackAdd(ScriptWords& words);
    explicit UpCallbackAdd(TextReader& stream);

protected:
    bool fire(SceneObject* owner) override;
    void saveFields(TextWriter& stream) const override;

private:
    std::string word;
};

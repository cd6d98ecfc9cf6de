#pragma once

#include "OneArgCall.h"

// The keywords with one argument that act on the world. Names of objects are looked up at every
// run; one that nothing answers to is no error.

/// "REVERSE" name: turns the motor of the named object's first joint round, if that is a spring
/// joint of six degrees of freedom.
class ReverseMotorAdd : public OneArgCall<std::string> {
public:
    static constexpr const char* keyword = "REVERSE";
    explicit ReverseMotorAdd(ScriptWords& words);
    explicit ReverseMotorAdd(TextReader& stream);

protected:
    bool fire(SceneObject* owner) override;
};

/// "LOOKAT" name: puts a following camera on the named object. The chain ends here.
class LookAtAdd : public OneArgCall<std::string> {
public:
    static constexpr const char* keyword = "LOOKAT";
    explicit LookAtAdd(ScriptWords& words);
    explicit LookAtAdd(TextReader& stream);

protected:
    bool fire(SceneObject* owner) override;
};

/// "SETLOCK" name: closes all locks of the named object, so that one switch can disable another.
class SetLockAdd : public OneArgCall<std::string> {
public:
    static constexpr const char* keyword = "SETLOCK";
    explicit SetLockAdd(ScriptWords& words);
    explicit SetLockAdd(TextReader& stream);

protected:
    bool fire(SceneObject* owner) override;
};

/// "REMOVEJOINTAT" name: removes the first joint of the named object.
class RemoveJointAdd : public OneArgCall<std::string> {
public:
    static constexpr const char* keyword = "REMOVEJOINTAT";
    explicit RemoveJointAdd(ScriptWords& words);
    explicit RemoveJointAdd(TextReader& stream);

protected:
    bool fire(SceneObject* owner) override;
};

/// "SCRATCH" word: with the word NULL, collisions of the object make no noise from now on. The
/// chain ends here.
class ScratchAdd : public OneArgCall<std::string> {
public:
    static constexpr const char* keyword = "SCRATCH";
    explicit ScratchAdd(ScriptWords& words);
    explicit ScratchAdd(TextReader& stream);

protected:
    bool fire(SceneObject* owner) override;
};

/// "AMBIENT" x: the ambient light moves to this grey, 0 to 1.
class AmbientSetAdd : public OneArgCall<float> {
public:
    static constexpr const char* keyword = "AMBIENT";
    explicit AmbientSetAdd(ScriptWords& words);
    explicit AmbientSetAdd(TextReader& stream);

protected:
    bool fire(SceneObject* owner) override;
};

/// "TIP" n: shows a line of the language table, with a bell. A number without a line, such as -1,
/// takes the tip away.
class TipMessageAdd : public OneArgCall<unsigned> {
public:
    static constexpr const char* keyword = "TIP";
    explicit TipMessageAdd(ScriptWords& words);
    explicit TipMessageAdd(TextReader& stream);

protected:
    bool fire(SceneObject* owner) override;
};

/// "DAMAGE" n: takes hit points from whatever touches the object, once for each contact point.
class DamageCallAdd : public OneArgCall<int> {
public:
    static constexpr const char* keyword = "DAMAGE";
    explicit DamageCallAdd(ScriptWords& words);
    explicit DamageCallAdd(TextReader& stream);

protected:
    bool fire(SceneObject* owner) override;
};

/// "EVILDAMAGE" n: the same for monsters only.
class EvilDamageCallAdd : public OneArgCall<int> {
public:
    static constexpr const char* keyword = "EVILDAMAGE";
    explicit EvilDamageCallAdd(ScriptWords& words);
    explicit EvilDamageCallAdd(TextReader& stream);

protected:
    bool fire(SceneObject* owner) override;
};

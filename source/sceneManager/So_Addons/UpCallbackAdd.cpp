#include "UpCallbackAdd.h"

#include "Bodies.h"
#include "TextStream.h"
#include "sceneManager/SceneManager.h"

#include <BulletDynamics/Dynamics/btRigidBody.h>

UpCallbackAdd::UpCallbackAdd(ScriptWords& words) : CallbackAdd(AdditionType::upCallback) {
    takeKeyword(words, keyword);
    word = takeWord(words);
}

UpCallbackAdd::UpCallbackAdd(TextReader& stream)
    : CallbackAdd(AdditionType::upCallback),
      word(readCountedString(stream)) {}

bool UpCallbackAdd::fire(SceneObject*) {
    for (const SceneObject* object : sceneManager().objects) {
        btRigidBody* body = bodyOf(object);
        if (body != nullptr && !body->isStaticObject()) {
            body->setGravity(-body->getGravity());
            break;
        }
    }
    return true;
}

void UpCallbackAdd::saveFields(TextWriter& stream) const {
    stream.writeCounted(word);
}

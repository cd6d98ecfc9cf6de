#pragma once

#include "ScriptWords.h"
#include "So_Addition.h"

#include <functional>
#include <map>
#include <string>

/// One link of a script chain. A chain runs by two walks: once a step, its head goes over the whole
/// chain and drives every clock; `update` fires a link, and a link that has done its work lets its
/// successor be fired. The head is fired every step.
///
/// All walks are loops, so a chain may be as long as memory allows. A class of the family gives
/// what one link does: `fire`, `finish`, `isClock`, `isRunning` and `advance`, `lockLink`,
/// `unlockLink` and `saveFields`. It has a `keyword`, a constructor from words, which takes the
/// keyword and its arguments from the front, and one from a record, which reads what `saveFields`
/// writes.
class CallbackAdd : public So_Addition {
public:
    /// Deletes the rest of the chain.
    ~CallbackAdd() override;

    /// Writes this link and all that follow.
    void save(TextWriter& stream) const final;
    /// Opens this link and all that follow.
    void unlock() final;
    bool contains(const So_Addition* addition) const final;
    /// Closes this link and all that follow.
    void lock() final;
    /// A head with a successor ticks; then this link is fired, and its successors for as long as
    /// each lets the next one be fired.
    void update(SceneObject* owner) final;
    CallbackAdd* getNext() const { return next; }
    CallbackAdd* getPrev() const { return prev; }

protected:
    explicit CallbackAdd(AdditionType code) : So_Addition(code) {}

    /// What the link does when it is fired. True if its successor is to be fired at once. A link
    /// that may be deleted meanwhile, as a command may do with its one-word chain, gives false.
    virtual bool fire(SceneObject* owner) = 0;
    /// What a link that let its successor be fired does after all of these have run.
    virtual void finish(SceneObject*) {}
    /// Whether the link has a clock, which `advance` drives by one step. Always the same answer.
    virtual bool isClock() const { return false; }
    /// Whether `advance` has anything to do. A clock that is set running calls `noteStart`.
    virtual bool isRunning() const { return false; }
    virtual void advance(SceneObject*) {}
    virtual void lockLink() {}
    virtual void unlockLink() {}
    /// The fields of the record between type and has-next.
    virtual void saveFields(TextWriter&) const {}

    // For clocks.
    void fireNext(SceneObject* owner);
    void noteStart();

private:
    friend CallbackAdd* createLink(ScriptWords& words);
    friend So_Addition* readAddition(TextReader& stream);

    CallbackAdd* append(CallbackAdd* link);
    void wireClocks();
    void tick(SceneObject* owner);

    CallbackAdd* next = nullptr;        // owned
    CallbackAdd* prev = nullptr;        // null marks the head
    CallbackAdd* clockBefore = nullptr; // the nearest link before this one that is a clock
    CallbackAdd* lastRunning = nullptr; // clock of the chain behind which none runs; the head's
};

/// What a named command does: the object whose chain fired (null in a global script), and the link.
using ScriptCallback = std::function<void(SceneObject*, So_Addition*)>;

/// Words that scripts may call by name. Filled before any map is read; lives as long as the
/// process.
std::map<std::string, ScriptCallback>& callbackTable();

/// Enters a command. A name may be entered once; the first entry stays.
void addCallback(const std::string& name, ScriptCallback callback);

/// Builds the chain that the words describe, taking all of them. There must be at least one.
CallbackAdd* createLink(ScriptWords& words);

/// Builds the chain of a script, words separated by single blanks. The caller owns it.
CallbackAdd* parseScript(const std::string& text);

#include "ScriptParser.h"

#include "CustomCallbackAdd.h"
#include "DelayAdd.h"
#include "LockAdd.h"
#include "LoopSoundAdds.h"
#include "ObjectNameAdd.h"
#include "ObscuredAdd.h"
#include "OneArgAdds.h"
#include "SoundAdd.h"
#include "SqueakAdd.h"
#include "TriggerAdd.h"
#include "UpCallbackAdd.h"

#include <algorithm>
#include <array>
#include <cassert>
#include <memory>
#include <sstream>

template <class Link>
static constexpr Keyword keyword() {
    return {Link::keyword, [](ScriptWords& words) -> CallbackAdd* { return new Link(words); }};
}

std::span<const Keyword> keywordTable() {
    static constexpr std::array table{
        keyword<AmbientSetAdd>(),    keyword<CreakAdd>(),       keyword<DamageCallAdd>(),
        keyword<DelayAdd>(),         keyword<DelayOrKeyAdd>(),  keyword<EvilDamageCallAdd>(),
        keyword<LockAdd>(),          keyword<LookAtAdd>(),      keyword<MovSoundAdd>(),
        keyword<ObjectNameAdd>(),    keyword<ObscuredAdd>(),    keyword<RemoveJointAdd>(),
        keyword<ReverseMotorAdd>(),  keyword<ScratchAdd>(),     keyword<SetLockAdd>(),
        keyword<SoundAdd>(),         keyword<SoundSourceAdd>(), keyword<SqueakAdd>(),
        keyword<StickyTriggerAdd>(), keyword<TipMessageAdd>(),  keyword<TriggerAdd>(),
        keyword<UnLockAdd>(),        keyword<UpCallbackAdd>(),  keyword<VSoundAdd>(),
    };
    return table;
}

static CallbackAdd* makeLink(ScriptWords& words) {
    const auto table = keywordTable();
    const auto found = std::find_if(table.begin(), table.end(), [&](const Keyword& candidate) {
        return words.front() == candidate.word;
    });
    return found == table.end() ? new CustomCallbackAdd(words) : found->make(words);
}

CallbackAdd* createLink(ScriptWords& words) {
    assert(!words.empty());
    if (words.empty()) {
        return nullptr;
    }
    std::unique_ptr<CallbackAdd> head(makeLink(words));
    CallbackAdd* tail = head.get();
    while (!words.empty()) {
        tail = tail->append(makeLink(words));
    }
    return head.release();
}

CallbackAdd* parseScript(const std::string& text) {
    ScriptWords words;
    std::istringstream stream(text);
    for (std::string word; std::getline(stream, word, ' ');) {
        words.push_back(word); // two blanks in a row give an empty word, which does nothing
    }
    return createLink(words);
}

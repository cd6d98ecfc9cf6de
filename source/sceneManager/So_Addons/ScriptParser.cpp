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
#include <string_view>
#include <vector>

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

/// The keywords by their words, which are few enough for a search by halves to beat all else.
static const std::vector<Keyword>& sortedKeywords() {
    static const std::vector<Keyword> sorted = [] {
        std::vector<Keyword> table(keywordTable().begin(), keywordTable().end());
        std::sort(table.begin(), table.end(),
                  [](const Keyword& a, const Keyword& b) { return a.word < b.word; });
        return table;
    }();
    return sorted;
}

static CallbackAdd* makeLink(ScriptWords& words) {
    const auto& table = sortedKeywords();
    const std::string_view word = words.front();
    const auto found = std::lower_bound(
        table.begin(), table.end(), word,
        [](const Keyword& candidate, std::string_view wanted) { return candidate.word < wanted; });
    return found == table.end() || found->word != word ? new CustomCallbackAdd(words)
                                                       : found->make(words);
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
    head->wireClocks();
    return head.release();
}

CallbackAdd* parseScript(const std::string& text) {
    ScriptWords words(text);
    return createLink(words);
}

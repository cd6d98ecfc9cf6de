#include "AdditionRecords.h"

#include "CustomCallbackAdd.h"
#include "DamageAdd.h"
#include "DelayAdd.h"
#include "DialogAdd.h"
#include "ForcefieldAdd.h"
#include "HealthAdd.h"
#include "LockAdd.h"
#include "LoopSoundAdds.h"
#include "ObjectNameAdd.h"
#include "ObscuredAdd.h"
#include "OneArgAdds.h"
#include "SoundAdd.h"
#include "SqueakAdd.h"
#include "TriggerAdd.h"
#include "UpCallbackAdd.h"
#include "WaterAddition.h"
#include "graphicsModule/LightAdd.h"
#include "graphicsModule/LightReaderAdd.h"
#include "graphicsModule/ParticleEmiter.h"

#include <algorithm>
#include <array>
#include <memory>

void So_Addition::save(TextWriter& stream) const {
    stream << static_cast<int>(type);
}

template <class Addition>
static constexpr RecordReader record(AdditionType type) {
    return {type, [](TextReader& stream) -> So_Addition* { return new Addition(stream); }};
}

std::span<const RecordReader> recordReaders() {
    using enum AdditionType;
    static constexpr std::array table{
        RecordReader{dialog, DialogAdd::read},
        record<DamageAdd>(damage),
        record<HealthAdd>(health),
        record<CustomCallbackAdd>(customCallback),
        record<TriggerAdd>(trigger),
        record<StickyTriggerAdd>(stickyTrigger),
        record<ObjectNameAdd>(objectName),
        record<UpCallbackAdd>(upCallback),
        record<ReverseMotorAdd>(reverseMotor),
        record<LockAdd>(lock),
        record<DelayAdd>(delay),
        record<UnLockAdd>(unlock),
        record<MovSoundAdd>(movSound),
        record<SoundSourceAdd>(soundSource),
        RecordReader{particleEmiter, ParticleEmiter::read},
        record<ForcefieldAdd>(forcefield),
        RecordReader{light, LightAdd::read},
        record<WaterAddition>(water),
        record<ObscuredAdd>(obscured),
        record<SoundAdd>(sound),
        record<SqueakAdd>(squeak),
        record<CreakAdd>(creak),
        record<AmbientSetAdd>(ambientSet),
        RecordReader{lightReader, LightReaderAdd::read},
        record<TipMessageAdd>(tipMessage),
        record<DelayOrKeyAdd>(delayOrKey),
        record<VSoundAdd>(vSound),
        record<ScratchAdd>(scratch),
        record<LookAtAdd>(lookAt),
        record<SetLockAdd>(setLock),
        record<DamageCallAdd>(damageCall),
        record<EvilDamageCallAdd>(evilDamageCall),
        record<RemoveJointAdd>(removeJoint),
    };
    return table;
}

/// One record, without has-next.
static std::unique_ptr<So_Addition> readRecord(TextReader& stream) {
    stream.setRecord("addition");
    const auto type = static_cast<AdditionType>(stream.read<int>());
    const auto table = recordReaders();
    const auto found = std::find_if(table.begin(), table.end(), [type](const RecordReader& reader) {
        return reader.type == type;
    });
    if (found == table.end()) {
        stream.fail();
    }
    return std::unique_ptr<So_Addition>(found->read(stream));
}

So_Addition* readAddition(TextReader& stream) {
    std::unique_ptr<So_Addition> addition = readRecord(stream);
    auto* const head = dynamic_cast<CallbackAdd*>(addition.get());
    CallbackAdd* tail = head;
    while (tail != nullptr && tail->type != AdditionType::objectName && stream.read<bool>()) {
        std::unique_ptr<So_Addition> following = readRecord(stream);
        auto* link = dynamic_cast<CallbackAdd*>(following.get());
        if (link == nullptr) {
            stream.fail();
        }
        static_cast<void>(following.release()); // the chain owns it from here on
        tail = tail->append(link);
    }
    if (head != nullptr) {
        head->wireClocks();
    }
    return addition.release();
}

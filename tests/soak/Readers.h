// Everything in the library and the viewer that reads what comes from outside.
#pragma once

#include <string>
#include <vector>

#include "varnoke/PLMInteract.h"
#include "varnoke/SignOpt.h"

namespace soak {

/// The records of one message.
struct Records {
    ~Records() {
        Cmn_ReleaseLoginInfo(login);
        Cmn_ReleaseSignType(steps);
        Cmn_ReleaseSignType(files);
    }
    SLoginInfo* login = nullptr;
    SSignType* steps = nullptr;
    SSignType* files = nullptr;
};

/// The objects that the readers use; initialised once.
class Library {
public:
    Library();
    ~Library();
    Library& operator=(Library&&) = delete;

    CPLMInteract plm;
    CSignOpt signOpt;
};

struct Reader {
    const char* name;
    std::string sample; ///< a sound input, to be damaged
    void (*read)(Library& library, const std::string& bytes);
};

std::vector<Reader> Readers();

} // namespace soak

// Ctrl+C, Ctrl+Break and the closing of the console, as a wish to stop.
#pragma once

namespace host {

/// While it lives, these don't end the program at once: the document in hand is finished first. A console
/// that is being closed waits for this object's end, as long as the system lets it. One at a time.
class StopRequest {
public:
    StopRequest();
    ~StopRequest();
    StopRequest& operator=(StopRequest&&) = delete;

    bool IsMade() const;
};

} // namespace host

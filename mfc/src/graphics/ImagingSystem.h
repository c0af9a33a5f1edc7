// The system's imaging component, which knows the formats of picture files.
#pragma once

namespace afxint {

/// Starts the component unless it runs. False when there is none.
bool StartImaging();
/// Ends the component; the next call of StartImaging starts it again.
void EndImaging();

/// Counts who may use the component. The last one that leaves ends it.
class ImagingUser
{
public:
    ImagingUser() { Enter(); }
    ~ImagingUser() { Leave(); }
    ImagingUser(const ImagingUser&) = delete;
    ImagingUser& operator=(const ImagingUser&) = delete;

    static void Enter();
    static void Leave();
};

} // namespace afxint

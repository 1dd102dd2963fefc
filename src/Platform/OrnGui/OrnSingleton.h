#pragma once

/// Components of the client's user interface.
namespace ORNGUI {

/// The one object of a default-constructible type.
template <typename T>
class OrnSingleton {
public:
    /// @return the object, made on first use from whichever thread. It is never destroyed, so it can be used until the
    ///         very end of the process.
    static T& Instance();
};

// Not inline, so that an instantiation that a library exports is the one that everybody calls.
template <typename T>
T& OrnSingleton<T>::Instance()
{
    static T* const pInstance = ::new T();
    return *pInstance;
}

}  // namespace ORNGUI

#pragma once

namespace Simulation {

//! What an injected fault throws.
enum class FaultKind {
    GenICam, //!< a GenICam::GenericException
    StdException, //!< a std::runtime_error
    NonStdException //!< an int, which is not a std::exception
};

//! The operations of parameters, their advanced access and collections that a fault can hit.
enum class Operation {
    Any, //!< every operation of the target
    // IParameter
    SetValueFromString,
    IsZombie,
    IsWritable,
    IsImposable,
    GetVisibility,
    GetType,
    GetFullName,
    GetName,
    AdvancedAccess,
    GetParameterData,
    // IIntegerParameter and IFloatParameter
    SetValue,
    GetValue,
    GetMinimum,
    GetMaximum,
    // ICommandParameter
    SetCommandPending,
    Execute,
    // IAdvancedParameterAccess
    GetProperty, //!< both overloads
    SetProperty,
    // IParameterCollection
    GetParameter,
    HasParameter,
    GetChildNames,
    RefreshAll,
    Poll
};

} // namespace Simulation

#pragma once

#include <array>
#include <string_view>

/// What the library registers, once: registration, unregistration and the registration-free manifest are made from it.
/// The identities are those of the type library. The host's own interfaces are not the library's to register.
namespace library::table {

inline constexpr std::string_view product = "K73053";
inline constexpr std::string_view typeLibrary = "{0c8c673b-8a80-4493-94b4-5b931f4e52ae}";
inline constexpr std::string_view typeLibraryName = "K73053: exercises on Microsoft PowerPoint 2003";
inline constexpr std::string_view version = "1.0";
inline constexpr std::string_view threadingModel = "Apartment";

/// The system's own class that carries the calls of dual interfaces from one apartment to another.
inline constexpr std::string_view automationProxy = "{00020424-0000-0000-C000-000000000046}";

/// A class that a host can create, by its name after "K73053.".
struct Class {
    std::string_view identity;
    std::string_view name;
    std::string_view description;
};

inline constexpr std::array<Class, 3> classes{{
    {"{1f1bc01e-38ec-42f6-8278-4fe03bc15e3f}", "Module", "K73053 Module"},
    {"{19ee5199-ccb9-420b-bad1-7680fc4d8cfe}", "FichiersDeTravail", "K73053 FichiersDeTravail"},
    {"{4c0f8f53-863e-4fc6-a18f-2cf2bc49bb85}", "ComplementInfo", "K73053 ComplementInfo"},
}};

struct Interface {
    std::string_view identity;
    std::string_view name;
};

inline constexpr std::array<Interface, 4> interfaces{{
    {"{d2b93336-d30b-4713-9a1d-555cd382d86c}", "IModule"},
    {"{8ca90e2c-2974-4368-926a-2767a181d5e5}", "IFichierDeTravail"},
    {"{5ef3d0e5-bea5-4d69-8c0f-444d661da3ac}", "IFichiersDeTravail"},
    {"{ae1a4029-a612-4cda-bbdc-920021a18203}", "IComplementInfo"},
}};

} // namespace library::table

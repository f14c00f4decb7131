#pragma once

/// How each singleton comes to be.
namespace KVCAM::UIAPI::Singleton {

/// The object that `stored` points to. When there is none, `make` gives one whose parts are empty but usable;
/// it is stored before `load` fills it, since loading asks the host, and a host that calls back must be given
/// this object: not a second one, and not a creation that never ends. What `make` throws leaves `stored`
/// null; `load` guards its own steps, and one that fails leaves its part empty.
template <class Object, class Make, class Load>
Object * obtain(Object *& stored, Make make, Load load)
{
    if (stored == nullptr) {
        Object * const made = make();
        stored = made;
        load(*made);
    }
    return stored;
}

} // namespace KVCAM::UIAPI::Singleton

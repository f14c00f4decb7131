#pragma once

/// How each singleton is created.
namespace KVCAM::UIAPI::Singleton {

/// The object that `stored` points to. If there is none, `make` creates one whose parts are empty but usable.
/// It is stored before `load` fills it: loading asks the host, and a host that calls back must get this
/// object, not a second one or endless recursion. If `make` throws, `stored` stays null. `load` guards its
/// own steps; a step that fails leaves its part empty.
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

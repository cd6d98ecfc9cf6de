#pragma once

/// The engine's singleton convention. A service is one heap object behind a process-wide pointer
/// that is null until somebody asks for it; construction order is therefore the order of first use.
///
/// A service class holds a `ServiceSlot<Itself>` as its FIRST member. The slot publishes the object
/// before the rest of it is constructed, so that a constructor may reach its own service through
/// the accessor, and withdraws it when the object dies.
template <class T>
class ServiceSlot {
public:
    explicit ServiceSlot(T* self) { instance = self; }
    ~ServiceSlot() { instance = nullptr; }
    ServiceSlot(const ServiceSlot&) = delete;
    ServiceSlot& operator=(const ServiceSlot&) = delete;

    static inline T* instance = nullptr;
};

/// The service, created with its default constructor if nobody has asked for it before. Whoever is
/// named as owner in the header of T deletes it.
template <class T>
T& service() {
    if (ServiceSlot<T>::instance == nullptr) {
        new T; // publishes itself through its slot
    }
    return *ServiceSlot<T>::instance;
}

/// Null while the service does not exist; never creates it.
template <class T>
T* existingService() {
    return ServiceSlot<T>::instance;
}

#pragma once

#include <vector>

namespace ItUnitechnik {

// The view of a group of child records. `container` points at a vector (or at
// a class that owns one) inside the same most-derived object; the owner's
// constructors point it there, so a copy of the owner works on its own member.
// The base therefore has no copy constructor, and its assignment keeps the
// pointer: an owner can default its assignment but must write its copy
// constructor.
//
// The primary template is the class flavour: `X` derives from the collection
// of a vector, and each operation forwards to that collection and then fires
// this object's own Changed, so a change through the outer view fires the
// inner hook first, then the outer one.
template <class X>
class ItCollectionImpl {
public:
    using element_type = typename X::element_type;
    using iterator = typename X::iterator;

    virtual iterator Insert(iterator position, const element_type& element)
    {
        iterator result = container->Insert(position, element);
        Changed();
        return result;
    }
    virtual void Add(const element_type& element)
    {
        container->Add(element);
        Changed();
    }
    virtual iterator RemoveRange(iterator first, iterator last)
    {
        iterator result = container->RemoveRange(first, last);
        Changed();
        return result;
    }
    virtual iterator Remove(iterator position)
    {
        iterator result = container->Remove(position);
        Changed();
        return result;
    }
    virtual void Clear()
    {
        container->Clear();
        Changed();
    }
    virtual void Changed() {}

    ItCollectionImpl(const ItCollectionImpl&) = delete;
    ItCollectionImpl& operator=(const ItCollectionImpl&) { return *this; }

protected:
    explicit ItCollectionImpl(X* managed) : container(managed) {}
    virtual ~ItCollectionImpl() = default;

    X* container;
};

// The vector flavour: the operations work on the vector directly, with the
// element type's copy, assignment and destruction.
template <class T>
class ItCollectionImpl<std::vector<T>> {
public:
    using element_type = T;
    using iterator = typename std::vector<T>::iterator;

    virtual iterator Insert(iterator position, const T& element)
    {
        iterator result = container->insert(position, element);
        Changed();
        return result;
    }
    virtual void Add(const T& element)
    {
        container->push_back(element);
        Changed();
    }
    virtual iterator RemoveRange(iterator first, iterator last)
    {
        iterator result = first == last ? first : container->erase(first, last);
        Changed();
        return result;
    }
    virtual iterator Remove(iterator position)
    {
        iterator result = container->erase(position);
        Changed();
        return result;
    }
    // Keeps the capacity.
    virtual void Clear()
    {
        container->clear();
        Changed();
    }
    virtual void Changed() {}

    ItCollectionImpl(const ItCollectionImpl&) = delete;
    ItCollectionImpl& operator=(const ItCollectionImpl&) { return *this; }

protected:
    explicit ItCollectionImpl(std::vector<T>* managed) : container(managed) {}
    virtual ~ItCollectionImpl() = default;

    std::vector<T>* container;
};

} // namespace ItUnitechnik

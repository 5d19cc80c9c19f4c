#pragma once

#include <vector>

namespace ItUnitechnik {

// The view of a group of child records. The group is a vector (or a class
// that owns one) inside the same most-derived object. The view does not hold
// its address: it holds a locator, a plain function that goes from the view
// to the owner's member, which the owner's constructors hand in once. A copy
// or a move of the owner copies the locator along, and the locator of the
// copy finds the copy's own member; so an owner leaves its copies, moves and
// assignments to the compiler, and each of them keeps working on its own
// members. The view holds no other state.
//
// The locator is usually a generic lambda in the owner's constructor:
//     ItCollectionImpl([](auto& self) -> auto& { return static_cast<Owner&>(self).member; })
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
        iterator result = container().Insert(position, element);
        Changed();
        return result;
    }
    virtual void Add(const element_type& element)
    {
        container().Add(element);
        Changed();
    }
    virtual iterator RemoveRange(iterator first, iterator last)
    {
        iterator result = container().RemoveRange(first, last);
        Changed();
        return result;
    }
    virtual iterator Remove(iterator position)
    {
        iterator result = container().Remove(position);
        Changed();
        return result;
    }
    virtual void Clear()
    {
        container().Clear();
        Changed();
    }
    virtual void Changed() {}

protected:
    using Locator = X& (*)(ItCollectionImpl&);

    explicit ItCollectionImpl(Locator locate) noexcept : locate_(locate) {}
    ItCollectionImpl(const ItCollectionImpl&) noexcept = default;
    ItCollectionImpl(ItCollectionImpl&&) noexcept = default;
    ItCollectionImpl& operator=(const ItCollectionImpl&) noexcept = default;
    ItCollectionImpl& operator=(ItCollectionImpl&&) noexcept = default;
    virtual ~ItCollectionImpl() = default;

    X& container() { return locate_(*this); }

private:
    Locator locate_;
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
        iterator result = container().insert(position, element);
        Changed();
        return result;
    }
    virtual void Add(const T& element)
    {
        container().push_back(element);
        Changed();
    }
    virtual iterator RemoveRange(iterator first, iterator last)
    {
        iterator result = first == last ? first : container().erase(first, last);
        Changed();
        return result;
    }
    virtual iterator Remove(iterator position)
    {
        iterator result = container().erase(position);
        Changed();
        return result;
    }
    // Keeps the capacity.
    virtual void Clear()
    {
        container().clear();
        Changed();
    }
    virtual void Changed() {}

protected:
    using Locator = std::vector<T>& (*)(ItCollectionImpl&);

    explicit ItCollectionImpl(Locator locate) noexcept : locate_(locate) {}
    ItCollectionImpl(const ItCollectionImpl&) noexcept = default;
    ItCollectionImpl(ItCollectionImpl&&) noexcept = default;
    ItCollectionImpl& operator=(const ItCollectionImpl&) noexcept = default;
    ItCollectionImpl& operator=(ItCollectionImpl&&) noexcept = default;
    virtual ~ItCollectionImpl() = default;

    std::vector<T>& container() { return locate_(*this); }

private:
    Locator locate_;
};

} // namespace ItUnitechnik

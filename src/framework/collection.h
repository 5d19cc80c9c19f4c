#pragma once

#include <cstdint>
#include <vector>

namespace ItUnitechnik {

// Where the work of a change is done. In the class flavour `X` derives from
// the collection of a vector, and each operation forwards to that collection,
// which fires its own Changed; the view then fires this object's, so a change
// through the outer view fires the inner hook first, then the outer one.
template <class X>
struct CollectionWork {
    using element_type = typename X::element_type;
    using iterator = typename X::iterator;

    static iterator Insert(X& x, iterator at, const element_type& e) { return x.Insert(at, e); }
    static void Add(X& x, const element_type& e) { x.Add(e); }
    static iterator RemoveRange(X& x, iterator first, iterator last) { return x.RemoveRange(first, last); }
    static iterator Remove(X& x, iterator at) { return x.Remove(at); }
    static void Clear(X& x) { x.Clear(); }
};

// The vector flavour: the work is done on the vector directly, with the
// element type's copy, assignment and destruction.
template <class T>
struct CollectionWork<std::vector<T>> {
    using element_type = T;
    using iterator = typename std::vector<T>::iterator;

    static iterator Insert(std::vector<T>& v, iterator at, const T& e) { return v.insert(at, e); }
    static void Add(std::vector<T>& v, const T& e) { v.push_back(e); }
    static iterator RemoveRange(std::vector<T>& v, iterator first, iterator last)
    {
        return first == last ? first : v.erase(first, last);
    }
    static iterator Remove(std::vector<T>& v, iterator at) { return v.erase(at); }
    // Keeps the capacity.
    static void Clear(std::vector<T>& v) { v.clear(); }
};

// The class a pointer to member belongs to.
template <class Member>
struct MemberOwner;
template <class Owner, class T>
struct MemberOwner<T Owner::*> {
    using type = Owner;
};

// A locator: from the view to the owner's member along the path of members.
// It converts to the plain function a view holds.
template <auto First, auto... Rest>
inline constexpr auto Locate = [](auto& view) -> auto&
{
    return ((static_cast<typename MemberOwner<decltype(First)>::type&>(view).*First).*....*Rest);
};

// The view of a group of child records. The group is a vector (or a class
// that owns one) inside the same most-derived object. The view does not hold
// its address: it holds a locator, a plain function that goes from the view
// to the owner's member, which the owner's constructors hand in once. A copy
// or a move of the owner copies the locator along, and the locator of the
// copy finds the copy's own member; so an owner leaves its copies, moves and
// assignments to the compiler, and each of them keeps working on its own
// members. The view holds no other state.
//
// The owner's constructor hands in the locator of its member, or of a member
// of one of its members:
//     ItCollectionImpl(Locate<&Owner::member>)
//     ItCollectionImpl<std::vector<Cutout>>(Locate<&Owner::cutoutData, &CutoutData::cutouts>)
template <class X>
class ItCollectionImpl {
    using Work = CollectionWork<X>;

public:
    using element_type = typename Work::element_type;
    using iterator = typename Work::iterator;

    virtual iterator Insert(iterator position, const element_type& element)
    {
        iterator result = Work::Insert(container(), position, element);
        Changed();
        return result;
    }
    virtual void Add(const element_type& element)
    {
        Work::Add(container(), element);
        Changed();
    }
    virtual iterator RemoveRange(iterator first, iterator last)
    {
        iterator result = Work::RemoveRange(container(), first, last);
        Changed();
        return result;
    }
    virtual iterator Remove(iterator position)
    {
        iterator result = Work::Remove(container(), position);
        Changed();
        return result;
    }
    virtual void Clear()
    {
        Work::Clear(container());
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

// The running number of the next entry of a list: the count so far plus 1.
template <class T>
std::int32_t NextNumber(const std::vector<T>& entries)
{
    return static_cast<std::int32_t>(entries.size()) + 1;
}

} // namespace ItUnitechnik

// ZELTravelsAsBytes<T>: whether an object of T may be moved by copying its bytes and forgetting where they were.
// template <class T> struct ZELTravelsAsBytes<ZELHandle<T>> : std::true_type {};
//
// It holds for types that are copied as bytes, and for those that say so as above: nobody knows the object's address, not
// even itself, and moving it and destroying what is left would come to the same.
#ifndef ZELTravelsAsBytes_H
#define ZELTravelsAsBytes_H

#include <type_traits>

template <class T>
struct ZELTravelsAsBytes : std::is_trivially_copyable<T>
{
};

#endif

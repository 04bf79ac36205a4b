// std::auto_ptr: sole ownership of one object made by new, handed over by copying; and
// auto_ptr_ref, which lets a temporary auto_ptr be copied and assigned from.
#ifndef __LORB_AUTO_PTR_H
#define __LORB_AUTO_PTR_H

#include <__lorb/config.h>

namespace std {

// Carries the pointer out of a temporary auto_ptr, whose release() it already called.
template <class _Y> struct auto_ptr_ref {
  _Y* __pointer;
  explicit auto_ptr_ref(_Y* p) : __pointer(p) {}
};

template <class _X> class auto_ptr {
public:
  typedef _X element_type;

  explicit auto_ptr(_X* p = 0) __LORB_NOEXCEPT : held(p) {}
  auto_ptr(auto_ptr& other) __LORB_NOEXCEPT : held(other.release()) {}
  template <class _Y> auto_ptr(auto_ptr<_Y>& other) __LORB_NOEXCEPT : held(other.release()) {}
  auto_ptr(auto_ptr_ref<_X> ref) __LORB_NOEXCEPT : held(ref.__pointer) {}
  ~auto_ptr() __LORB_NOEXCEPT { delete held; }

  auto_ptr& operator=(auto_ptr& other) __LORB_NOEXCEPT {
    reset(other.release());
    return *this;
  }
  template <class _Y> auto_ptr& operator=(auto_ptr<_Y>& other) __LORB_NOEXCEPT {
    reset(other.release());
    return *this;
  }
  auto_ptr& operator=(auto_ptr_ref<_X> ref) __LORB_NOEXCEPT {
    reset(ref.__pointer);
    return *this;
  }

  _X& operator*() const __LORB_NOEXCEPT { return *held; }
  _X* operator->() const __LORB_NOEXCEPT { return held; }
  _X* get() const __LORB_NOEXCEPT { return held; }
  _X* release() __LORB_NOEXCEPT {
    _X* p = held;
    held = 0;
    return p;
  }
  // Resetting to the pointer already held keeps the object alive.
  void reset(_X* p = 0) __LORB_NOEXCEPT {
    if (p != held) {
      delete held;
      held = p;
    }
  }

  template <class _Y> operator auto_ptr_ref<_Y>() __LORB_NOEXCEPT {
    return auto_ptr_ref<_Y>(release());
  }
  template <class _Y> operator auto_ptr<_Y>() __LORB_NOEXCEPT { return auto_ptr<_Y>(release()); }

private:
  _X* held;
};

} // namespace std

#endif

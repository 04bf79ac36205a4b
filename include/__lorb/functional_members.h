// The adaptors that make function objects of plain functions (ptr_fun) and of member functions
// called through a pointer (mem_fun) or a reference (mem_fun_ref), const or not, with no
// argument or one.
#ifndef __LORB_FUNCTIONAL_MEMBERS_H
#define __LORB_FUNCTIONAL_MEMBERS_H

#include <__lorb/function_base.h>

namespace std {

template <class _Arg, class _Result>
class pointer_to_unary_function : public unary_function<_Arg, _Result> {
protected:
  _Result (*function)(_Arg);

public:
  explicit pointer_to_unary_function(_Result (*f)(_Arg)) : function(f) {}
  _Result operator()(_Arg x) const { return function(x); }
};

template <class _Arg1, class _Arg2, class _Result>
class pointer_to_binary_function : public binary_function<_Arg1, _Arg2, _Result> {
protected:
  _Result (*function)(_Arg1, _Arg2);

public:
  explicit pointer_to_binary_function(_Result (*f)(_Arg1, _Arg2)) : function(f) {}
  _Result operator()(_Arg1 x, _Arg2 y) const { return function(x, y); }
};

template <class _Arg, class _Result>
inline pointer_to_unary_function<_Arg, _Result> ptr_fun(_Result (*f)(_Arg)) {
  return pointer_to_unary_function<_Arg, _Result>(f);
}
template <class _Arg1, class _Arg2, class _Result>
inline pointer_to_binary_function<_Arg1, _Arg2, _Result> ptr_fun(_Result (*f)(_Arg1, _Arg2)) {
  return pointer_to_binary_function<_Arg1, _Arg2, _Result>(f);
}

// Through a pointer to the object.

template <class _Result, class _Class> class mem_fun_t : public unary_function<_Class*, _Result> {
  _Result (_Class::*member)();

public:
  explicit mem_fun_t(_Result (_Class::*m)()) : member(m) {}
  _Result operator()(_Class* object) const { return (object->*member)(); }
};

template <class _Result, class _Class, class _Arg>
class mem_fun1_t : public binary_function<_Class*, _Arg, _Result> {
  _Result (_Class::*member)(_Arg);

public:
  explicit mem_fun1_t(_Result (_Class::*m)(_Arg)) : member(m) {}
  _Result operator()(_Class* object, _Arg x) const { return (object->*member)(x); }
};

template <class _Result, class _Class>
class const_mem_fun_t : public unary_function<const _Class*, _Result> {
  _Result (_Class::*member)() const;

public:
  explicit const_mem_fun_t(_Result (_Class::*m)() const) : member(m) {}
  _Result operator()(const _Class* object) const { return (object->*member)(); }
};

template <class _Result, class _Class, class _Arg>
class const_mem_fun1_t : public binary_function<const _Class*, _Arg, _Result> {
  _Result (_Class::*member)(_Arg) const;

public:
  explicit const_mem_fun1_t(_Result (_Class::*m)(_Arg) const) : member(m) {}
  _Result operator()(const _Class* object, _Arg x) const { return (object->*member)(x); }
};

// Through a reference to the object.

template <class _Result, class _Class>
class mem_fun_ref_t : public unary_function<_Class, _Result> {
  _Result (_Class::*member)();

public:
  explicit mem_fun_ref_t(_Result (_Class::*m)()) : member(m) {}
  _Result operator()(_Class& object) const { return (object.*member)(); }
};

template <class _Result, class _Class, class _Arg>
class mem_fun1_ref_t : public binary_function<_Class, _Arg, _Result> {
  _Result (_Class::*member)(_Arg);

public:
  explicit mem_fun1_ref_t(_Result (_Class::*m)(_Arg)) : member(m) {}
  _Result operator()(_Class& object, _Arg x) const { return (object.*member)(x); }
};

template <class _Result, class _Class>
class const_mem_fun_ref_t : public unary_function<_Class, _Result> {
  _Result (_Class::*member)() const;

public:
  explicit const_mem_fun_ref_t(_Result (_Class::*m)() const) : member(m) {}
  _Result operator()(const _Class& object) const { return (object.*member)(); }
};

template <class _Result, class _Class, class _Arg>
class const_mem_fun1_ref_t : public binary_function<_Class, _Arg, _Result> {
  _Result (_Class::*member)(_Arg) const;

public:
  explicit const_mem_fun1_ref_t(_Result (_Class::*m)(_Arg) const) : member(m) {}
  _Result operator()(const _Class& object, _Arg x) const { return (object.*member)(x); }
};

template <class _Result, class _Class>
inline mem_fun_t<_Result, _Class> mem_fun(_Result (_Class::*m)()) {
  return mem_fun_t<_Result, _Class>(m);
}
template <class _Result, class _Class, class _Arg>
inline mem_fun1_t<_Result, _Class, _Arg> mem_fun(_Result (_Class::*m)(_Arg)) {
  return mem_fun1_t<_Result, _Class, _Arg>(m);
}
template <class _Result, class _Class>
inline const_mem_fun_t<_Result, _Class> mem_fun(_Result (_Class::*m)() const) {
  return const_mem_fun_t<_Result, _Class>(m);
}
template <class _Result, class _Class, class _Arg>
inline const_mem_fun1_t<_Result, _Class, _Arg> mem_fun(_Result (_Class::*m)(_Arg) const) {
  return const_mem_fun1_t<_Result, _Class, _Arg>(m);
}

template <class _Result, class _Class>
inline mem_fun_ref_t<_Result, _Class> mem_fun_ref(_Result (_Class::*m)()) {
  return mem_fun_ref_t<_Result, _Class>(m);
}
template <class _Result, class _Class, class _Arg>
inline mem_fun1_ref_t<_Result, _Class, _Arg> mem_fun_ref(_Result (_Class::*m)(_Arg)) {
  return mem_fun1_ref_t<_Result, _Class, _Arg>(m);
}
template <class _Result, class _Class>
inline const_mem_fun_ref_t<_Result, _Class> mem_fun_ref(_Result (_Class::*m)() const) {
  return const_mem_fun_ref_t<_Result, _Class>(m);
}
template <class _Result, class _Class, class _Arg>
inline const_mem_fun1_ref_t<_Result, _Class, _Arg> mem_fun_ref(_Result (_Class::*m)(_Arg) const) {
  return const_mem_fun1_ref_t<_Result, _Class, _Arg>(m);
}

} // namespace std

#endif

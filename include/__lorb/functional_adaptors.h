// The adaptors that turn one function object into another: the negators not1 and not2 and the
// binders bind1st and bind2nd, which fix one argument of a binary function object.
#ifndef __LORB_FUNCTIONAL_ADAPTORS_H
#define __LORB_FUNCTIONAL_ADAPTORS_H

#include <__lorb/function_base.h>

namespace std {

template <class _Predicate>
class unary_negate : public unary_function<typename _Predicate::argument_type, bool> {
protected:
  _Predicate pred;

public:
  explicit unary_negate(const _Predicate& x) : pred(x) {}
  bool operator()(const typename _Predicate::argument_type& x) const { return !pred(x); }
};

template <class _Predicate> inline unary_negate<_Predicate> not1(const _Predicate& pred) {
  return unary_negate<_Predicate>(pred);
}

template <class _Predicate>
class binary_negate : public binary_function<typename _Predicate::first_argument_type,
                                             typename _Predicate::second_argument_type, bool> {
protected:
  _Predicate pred;

public:
  explicit binary_negate(const _Predicate& x) : pred(x) {}
  bool operator()(const typename _Predicate::first_argument_type& x,
                  const typename _Predicate::second_argument_type& y) const {
    return !pred(x, y);
  }
};

template <class _Predicate> inline binary_negate<_Predicate> not2(const _Predicate& pred) {
  return binary_negate<_Predicate>(pred);
}

template <class _Operation>
class binder1st : public unary_function<typename _Operation::second_argument_type,
                                        typename _Operation::result_type> {
protected:
  _Operation op;
  typename _Operation::first_argument_type value;

public:
  binder1st(const _Operation& x, const typename _Operation::first_argument_type& y)
      : op(x), value(y) {}
  typename _Operation::result_type
  operator()(const typename _Operation::second_argument_type& x) const {
    return op(value, x);
  }
  // Also for operations that take their argument by non-const reference (mem_fun_ref of a
  // member that changes the object).
  typename _Operation::result_type operator()(typename _Operation::second_argument_type& x) const {
    return op(value, x);
  }
};

template <class _Operation, class _T>
inline binder1st<_Operation> bind1st(const _Operation& op, const _T& x) {
  return binder1st<_Operation>(op, typename _Operation::first_argument_type(x));
}

template <class _Operation>
class binder2nd : public unary_function<typename _Operation::first_argument_type,
                                        typename _Operation::result_type> {
protected:
  _Operation op;
  typename _Operation::second_argument_type value;

public:
  binder2nd(const _Operation& x, const typename _Operation::second_argument_type& y)
      : op(x), value(y) {}
  typename _Operation::result_type
  operator()(const typename _Operation::first_argument_type& x) const {
    return op(x, value);
  }
  // Also for operations that take their argument by non-const reference (mem_fun_ref of a
  // member that changes the object).
  typename _Operation::result_type operator()(typename _Operation::first_argument_type& x) const {
    return op(x, value);
  }
};

template <class _Operation, class _T>
inline binder2nd<_Operation> bind2nd(const _Operation& op, const _T& x) {
  return binder2nd<_Operation>(op, typename _Operation::second_argument_type(x));
}

} // namespace std

#endif

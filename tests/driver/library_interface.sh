#!/bin/sh
# The library's dynamic interface: every run-time entry point exported under its exact name,
# only the C library needed, a soname, and no symbolic binding.
lib=$1
status=0
exported=$(nm -D --defined-only "$lib" | awk '{print $3}')
for name in __record_needed_destruction __vel_std_atexit __process_needed_destructions \
  __std__needed_destruction_list __call_ctors __call_dtors _main _Z4exiti __plo_exit \
  __process_shared_object_destruction __pure_virtual_called __eh_exit_processing \
  __already_marked_for_destruction __main_called_more_than_once __cxa_pure_virtual \
  __vec_new __vec_new_eh __vec_cctor __vec_cctor_eh __vec_delete __array_new \
  __placement_array_new __array_delete __vel_fast_vec_new __vel_fast_vec_delete \
  __array_new_prefix_size _array_pointer_not_from_vec_new _new_handler __default_new_handler \
  call_new_handler __memzero _Znwj _ZnwjRKSt9nothrow_t _Znaj _ZnajRKSt9nothrow_t _ZdlPv _ZdaPv \
  _ZdlPvS_ _ZdlPvj _ZdaPvj _ZSt15set_new_handlerPFvvE _ZSt7nothrow \
  __get_typeid __derived_to_base_conversion __dynamic_cast __dynamic_cast_ref __throw_bad_cast \
  __throw_bad_typeid __vtbl__Q2_3std9type_info __T_Q2_3std9type_info __TID_Q2_3std9type_info \
  __T_Q2_3std9exception __TID_Q2_3std9exception __T_Q2_3std9bad_alloc __TID_Q2_3std9bad_alloc \
  __T_Q2_3std8bad_cast __TID_Q2_3std8bad_cast __T_Q2_3std10bad_typeid __TID_Q2_3std10bad_typeid; do
  echo "$exported" | grep -qx "$name" || { echo "not exported: $name"; status=1; }
done
# The stream objects, their buffers and Init, and the parsing helpers the facets are built on.
for name in _ZSt3cin _ZSt4cout _ZSt4cerr _ZSt4clog _ZSt11__trelk_fin _ZSt12__trelk_fout \
  _ZSt12__trelk_ferr _ZNSt8ios_base4Init8init_cntE _ZNSt8ios_base4InitC1Ev _ZNSt8ios_base4InitD1Ev \
  _ZSt22__trelk_check_groupingiiPKiRKSs _ZSt15__trelk_strtoulPKcRmi _ZSt14__trelk_strtolPKcRli \
  _ZNKSt19istreambuf_iteratorIcSt11char_traitsIcEEdeEv \
  _ZNSt19istreambuf_iteratorIcSt11char_traitsIcEEppEv \
  _ZNKSt19istreambuf_iteratorIcSt11char_traitsIcEE5equalERKS2_ _ZSt22__vel_extract_c_stringRSiPc \
  _ZNKSt7num_getIcSt19istreambuf_iteratorIcSt11char_traitsIcEEE22vel_scan_integral_typeERS3_S5_RSt8ios_baseRiim; do
  echo "$exported" | grep -qx "$name" || { echo "not exported: $name"; status=1; }
done
# The standard streams are raw storage of their own size, built in place at start-up.
for name in _ZSt3cin _ZSt4cout; do
  nm -D -S --defined-only "$lib" | grep -q " [BD] $name\$" || { echo "$name is not a data object"; status=1; }
done
needed=$(readelf -d "$lib" | awk '/NEEDED/ {print $5}')
[ "$needed" = "[libc.so.6]" ] || { echo "needs more than the C library: $needed"; status=1; }
readelf -d "$lib" | grep -q 'SONAME.*\[liblorb++.so.1\]' || { echo "soname is not liblorb++.so.1"; status=1; }
readelf -d "$lib" | grep -qE 'SYMBOLIC' && { echo "built with symbolic binding"; status=1; }
readelf -h "$lib" | grep -q 'Machine:.*80386' || { echo "not an i386 object"; status=1; }
[ $status = 0 ] && echo "library interface ok"
exit $status

// Settings every Lorb++ header shares: export marking and the throw()/noexcept spellings.
#ifndef __LORB_CONFIG_H
#define __LORB_CONFIG_H

// The library is built with hidden visibility; exactly what carries this mark is exported.
#define __LORB_EXPORT __attribute__((__visibility__("default")))

#if __cplusplus >= 201103L
#define __LORB_NOEXCEPT noexcept
#else
#define __LORB_NOEXCEPT throw()
#endif

#define __LORB_NORETURN __attribute__((__noreturn__))

#endif

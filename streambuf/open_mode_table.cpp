// The open modes a file buffer accepts and the fopen mode of each, searched in this order.
#include <__lorb/filebuf.h>

namespace std {

const __vel_open_mode __vel_open_modes[] = {
    {ios_base::out, "w"},
    {ios_base::out | ios_base::app, "a"},
    {ios_base::out | ios_base::trunc, "w"},
    {ios_base::in, "r"},
    {ios_base::in | ios_base::out, "r+"},
    {ios_base::in | ios_base::out | ios_base::trunc, "w+"},
    {ios_base::out | ios_base::binary, "wb"},
    {ios_base::out | ios_base::app | ios_base::binary, "ab"},
    {ios_base::out | ios_base::trunc | ios_base::binary, "wb"},
    {ios_base::in | ios_base::binary, "rb"},
    {ios_base::in | ios_base::out | ios_base::binary, "r+b"},
    {ios_base::in | ios_base::out | ios_base::trunc | ios_base::binary, "w+b"},
    {0, 0},
};

} // namespace std

// The fixed tables of the "C" locale: the class of every byte and the two case mappings.
#include <__lorb/ctype_facets.h>

namespace std {
namespace {
// Short names so that each row of the class table reads as 16 byte values.
const ctype_base::mask C = ctype_base::cntrl;
const ctype_base::mask SC = ctype_base::space | ctype_base::cntrl;
const ctype_base::mask SP = ctype_base::space | ctype_base::print;
const ctype_base::mask P = ctype_base::punct | ctype_base::print;
const ctype_base::mask D = ctype_base::digit | ctype_base::xdigit | ctype_base::print;
const ctype_base::mask U = ctype_base::upper | ctype_base::alpha | ctype_base::print;
const ctype_base::mask UX = U | ctype_base::xdigit;
const ctype_base::mask L = ctype_base::lower | ctype_base::alpha | ctype_base::print;
const ctype_base::mask LX = L | ctype_base::xdigit;
} // namespace

// NUL has no class at all, deliberately not even cntrl; bytes 0x80 to 0xFF have none either.
// clang-format off
const ctype_base::mask ctype<char>::classic_table[ctype<char>::table_size] = {
    0 , C , C , C , C , C , C , C , C , SC, SC, SC, SC, SC, C , C, // 0x00
    C , C , C , C , C , C , C , C , C , C , C , C , C , C , C , C, // 0x10
    SP, P , P , P , P , P , P , P , P , P , P , P , P , P , P , P, // 0x20
    D , D , D , D , D , D , D , D , D , D , P , P , P , P , P , P, // 0x30
    P , UX, UX, UX, UX, UX, UX, U , U , U , U , U , U , U , U , U, // 0x40
    U , U , U , U , U , U , U , U , U , U , U , P , P , P , P , P, // 0x50
    P , LX, LX, LX, LX, LX, LX, L , L , L , L , L , L , L , L , L, // 0x60
    L , L , L , L , L , L , L , L , L , L , L , P , P , P , P , C, // 0x70
    0 , 0 , 0 , 0 , 0 , 0 , 0 , 0 , 0 , 0 , 0 , 0 , 0 , 0 , 0 , 0, // 0x80
    0 , 0 , 0 , 0 , 0 , 0 , 0 , 0 , 0 , 0 , 0 , 0 , 0 , 0 , 0 , 0, // 0x90
    0 , 0 , 0 , 0 , 0 , 0 , 0 , 0 , 0 , 0 , 0 , 0 , 0 , 0 , 0 , 0, // 0xA0
    0 , 0 , 0 , 0 , 0 , 0 , 0 , 0 , 0 , 0 , 0 , 0 , 0 , 0 , 0 , 0, // 0xB0
    0 , 0 , 0 , 0 , 0 , 0 , 0 , 0 , 0 , 0 , 0 , 0 , 0 , 0 , 0 , 0, // 0xC0
    0 , 0 , 0 , 0 , 0 , 0 , 0 , 0 , 0 , 0 , 0 , 0 , 0 , 0 , 0 , 0, // 0xD0
    0 , 0 , 0 , 0 , 0 , 0 , 0 , 0 , 0 , 0 , 0 , 0 , 0 , 0 , 0 , 0, // 0xE0
    0 , 0 , 0 , 0 , 0 , 0 , 0 , 0 , 0 , 0 , 0 , 0 , 0 , 0 , 0 , 0, // 0xF0
};

// 'a' to 'z' become 'A' to 'Z'; every other value maps to itself.
const short ctype<char>::toupper_tab[ctype<char>::table_size + 2] = {
    -1, // end-of-file
    0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, // 0x00
    16, 17, 18, 19, 20, 21, 22, 23, 24, 25, 26, 27, 28, 29, 30, 31, // 0x10
    32, 33, 34, 35, 36, 37, 38, 39, 40, 41, 42, 43, 44, 45, 46, 47, // 0x20
    48, 49, 50, 51, 52, 53, 54, 55, 56, 57, 58, 59, 60, 61, 62, 63, // 0x30
    64, 65, 66, 67, 68, 69, 70, 71, 72, 73, 74, 75, 76, 77, 78, 79, // 0x40
    80, 81, 82, 83, 84, 85, 86, 87, 88, 89, 90, 91, 92, 93, 94, 95, // 0x50
    96, 65, 66, 67, 68, 69, 70, 71, 72, 73, 74, 75, 76, 77, 78, 79, // 0x60
    80, 81, 82, 83, 84, 85, 86, 87, 88, 89, 90, 123, 124, 125, 126, 127, // 0x70
    128, 129, 130, 131, 132, 133, 134, 135, 136, 137, 138, 139, 140, 141, 142, 143, // 0x80
    144, 145, 146, 147, 148, 149, 150, 151, 152, 153, 154, 155, 156, 157, 158, 159, // 0x90
    160, 161, 162, 163, 164, 165, 166, 167, 168, 169, 170, 171, 172, 173, 174, 175, // 0xA0
    176, 177, 178, 179, 180, 181, 182, 183, 184, 185, 186, 187, 188, 189, 190, 191, // 0xB0
    192, 193, 194, 195, 196, 197, 198, 199, 200, 201, 202, 203, 204, 205, 206, 207, // 0xC0
    208, 209, 210, 211, 212, 213, 214, 215, 216, 217, 218, 219, 220, 221, 222, 223, // 0xD0
    224, 225, 226, 227, 228, 229, 230, 231, 232, 233, 234, 235, 236, 237, 238, 239, // 0xE0
    240, 241, 242, 243, 244, 245, 246, 247, 248, 249, 250, 251, 252, 253, 254, 255, // 0xF0
    0};

// 'A' to 'Z' become 'a' to 'z'; every other value maps to itself.
const short ctype<char>::tolower_tab[ctype<char>::table_size + 2] = {
    -1, // end-of-file
    0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, // 0x00
    16, 17, 18, 19, 20, 21, 22, 23, 24, 25, 26, 27, 28, 29, 30, 31, // 0x10
    32, 33, 34, 35, 36, 37, 38, 39, 40, 41, 42, 43, 44, 45, 46, 47, // 0x20
    48, 49, 50, 51, 52, 53, 54, 55, 56, 57, 58, 59, 60, 61, 62, 63, // 0x30
    64, 97, 98, 99, 100, 101, 102, 103, 104, 105, 106, 107, 108, 109, 110, 111, // 0x40
    112, 113, 114, 115, 116, 117, 118, 119, 120, 121, 122, 91, 92, 93, 94, 95, // 0x50
    96, 97, 98, 99, 100, 101, 102, 103, 104, 105, 106, 107, 108, 109, 110, 111, // 0x60
    112, 113, 114, 115, 116, 117, 118, 119, 120, 121, 122, 123, 124, 125, 126, 127, // 0x70
    128, 129, 130, 131, 132, 133, 134, 135, 136, 137, 138, 139, 140, 141, 142, 143, // 0x80
    144, 145, 146, 147, 148, 149, 150, 151, 152, 153, 154, 155, 156, 157, 158, 159, // 0x90
    160, 161, 162, 163, 164, 165, 166, 167, 168, 169, 170, 171, 172, 173, 174, 175, // 0xA0
    176, 177, 178, 179, 180, 181, 182, 183, 184, 185, 186, 187, 188, 189, 190, 191, // 0xB0
    192, 193, 194, 195, 196, 197, 198, 199, 200, 201, 202, 203, 204, 205, 206, 207, // 0xC0
    208, 209, 210, 211, 212, 213, 214, 215, 216, 217, 218, 219, 220, 221, 222, 223, // 0xD0
    224, 225, 226, 227, 228, 229, 230, 231, 232, 233, 234, 235, 236, 237, 238, 239, // 0xE0
    240, 241, 242, 243, 244, 245, 246, 247, 248, 249, 250, 251, 252, 253, 254, 255, // 0xF0
    0};

// clang-format on
} // namespace std

#include "simulator/files/powerpoint/ColorSchemeAtom.h"

#include "simulator/files/bytes/Bytes.h"
#include "simulator/files/bytes/ColorBits.h"

namespace simulator::powerpoint {

std::string colorBytes(const ColorScheme& scheme) {
    files::ByteWriter out;
    for (const std::int32_t color : scheme.colors) {
        out.write<std::int32_t>(color);
    }
    return out.take();
}

ColorScheme readColors(const records::Record& atom) {
    files::ByteReader in(atom.data, "a colour scheme");
    ColorScheme scheme;
    asFarAsSound([&] {
        for (std::int32_t& color : scheme.colors) {
            color = files::directColor(in.read<std::uint32_t>()).rgb;
        }
    });
    return scheme;
}

} // namespace simulator::powerpoint

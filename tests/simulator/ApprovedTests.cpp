#include "host/world/TemporaryFolder.h"
#include "simulator/files/WholeFile.h"
#include "simulator/files/compound/CompoundReader.h"
#include "simulator/files/powerpoint/DocumentWriter.h"
#include "simulator/files/powerpoint/Streams.h"
#include "simulator/files/records/RecordReader.h"
#include "simulator/picture/SlidePicture.h"
#include "tests/simulator/files/RichPresentation.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iomanip>
#include <sstream>

/// What files and pictures hold, compared with what has been looked at and found right: `tests/simulator/approved`.
namespace simulator::approved_tests {

/// Compares a text with the approved one, line by line, and leaves it for another look where it differs.
void expectApproved(const std::string& name, const std::string& seen) {
    const std::filesystem::path approved = std::filesystem::path(APPROVED) / name;
    std::istringstream now(seen);
    std::istringstream before(files::wholeFile(approved).value_or(""));
    std::string line;
    std::string wanted;
    for (std::size_t number = 1; std::getline(now, line); ++number) {
        if (!std::getline(before, wanted) || line != wanted) {
            const std::filesystem::path kept = std::filesystem::temp_directory_path() / name;
            std::ofstream(kept, std::ios::binary) << seen;
            FAIL() << approved << ':' << number << "\n  " << wanted << "\nis now\n  " << line << "\nas " << kept
                   << " has it";
        }
    }
    EXPECT_FALSE(std::getline(before, wanted)) << approved << " goes on with\n  " << wanted;
}

/// All masters and slides in one picture, one below the other, a line an element.
std::string pictureOf(const Presentation& presentation) {
    std::vector<SlidePtr> sheets = presentation.masters;
    sheets.insert(sheets.end(), presentation.slides().begin(), presentation.slides().end());
    const auto height = static_cast<std::size_t>(presentation.slideHeight);
    std::string all;
    for (std::size_t number = 0; number < sheets.size(); ++number) {
        const Slide& sheet = *sheets[number];
        const auto first = sheet.shapes().begin();
        const picture::Wanted wanted{0, 0, {first, first + (sheet.shapes().empty() ? 0 : 1)}};
        all += "<svg y=\"" + std::to_string(number * height) + "\"" +
               picture::drawSlide(presentation, sheet, wanted).substr(4);
    }
    for (std::size_t end = all.find("><"); end != std::string::npos; end = all.find("><", end)) {
        all.insert(end + 1, "\n");
    }
    return "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 " +
           std::to_string(static_cast<std::size_t>(presentation.slideWidth)) + " " +
           std::to_string(sheets.size() * height) + "\">\n" + all + "</svg>\n";
}

std::string hex(std::string_view bytes) {
    std::ostringstream out;
    for (const char byte : bytes) {
        out << std::hex << std::setfill('0') << std::setw(2) << int{static_cast<unsigned char>(byte)};
    }
    return out.str();
}

/// A line for each record: its type, instance and version, and what it holds.
void list(const records::Record& record, const std::string& indent, std::ostream& out) {
    out << indent << std::hex << record.type << '.' << record.instance << '.' << int{record.version};
    out << (record.data.empty() ? "" : " ") << hex(record.data) << '\n';
    for (const records::Record& child : record.children) {
        list(child, indent + ' ', out);
    }
}

std::string recordsOf(const Presentation& presentation) {
    const compound::Storage file = compound::read(powerpoint::writePresentation(presentation));
    std::ostringstream out;
    for (const compound::Stream& stream : file.streams) {
        out << automation::toUtf8(stream.name) << ' ' << std::dec << stream.bytes.size() << '\n';
    }
    for (const std::u16string_view name : {powerpoint::currentUserStream, powerpoint::documentStream}) {
        const std::string& bytes = file.stream(name)->bytes;
        for (std::size_t place = 0; place < bytes.size(); place += records::sizeOfRecord(bytes, place)) {
            list(records::readRecord(bytes, place), "", out);
        }
    }
    return out.str();
}

/// All bytes of a file, a line a sector.
std::string sectorsOf(const std::string& file) {
    constexpr std::size_t sector = 512;
    std::string lines;
    for (std::size_t place = 0; place < file.size(); place += sector) {
        lines += hex(std::string_view(file).substr(place, sector)) + '\n';
    }
    return lines;
}

TEST(Approved, PicturesOfEveryKind) {
    expectApproved("kinds.svg", pictureOf(*file_tests::everyKind()));
    expectApproved("rich.svg", pictureOf(*file_tests::richPresentation()));
}

TEST(Approved, RecordsOfEveryKind) {
    expectApproved("kinds.records", recordsOf(*file_tests::everyKind()));
    expectApproved("rich.records", recordsOf(*file_tests::richPresentation()));
    expectApproved("rich.sectors", sectorsOf(powerpoint::writePresentation(*file_tests::richPresentation())));
}

} // namespace simulator::approved_tests

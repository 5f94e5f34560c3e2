#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

class Pipeline;          // libqpdf's
class QPDFObjectHandle;  // likewise

namespace host {

/// Writes the objects of a PDF file one after the other, keeping only their positions:
/// libqpdf's own writer holds them all until the file is complete, and a file may have
/// thousands of pages. Small objects are packed together.
class PdfObjects {
public:
    /// Takes the bytes of a file, piece by piece.
    using Sink = std::function<void(const std::vector<std::uint8_t>&)>;

    /// @param sink throws when it cannot take a piece; its exception passes through every
    /// call
    explicit PdfObjects(const Sink& sink);
    PdfObjects(const PdfObjects&) = delete;
    PdfObjects& operator=(const PdfObjects&) = delete;
    ~PdfObjects();

    /// A number for an object that is written later.
    int Reserve();

    /// A reference to an object: "12 0 R". Objects refer to others only by these.
    static QPDFObjectHandle Reference(int number);

    void Write(int number, QPDFObjectHandle object);
    /// @return its number
    int Write(const QPDFObjectHandle& object);

    /// Writes a stream; `entries` are those of its dictionary except length and filter.
    int WritePlain(const QPDFObjectHandle& entries, const std::string& bytes);
    int WritePacked(const QPDFObjectHandle& entries, const std::string& bytes);

    using Fill = std::function<void(Pipeline&)>;
    /// @param entries including the filter that the bytes have gone through
    /// @param fill writes `length` bytes; std::runtime_error is thrown if it does not
    int WriteRaw(const QPDFObjectHandle& entries, std::size_t length, const Fill& fill);

    /// Ends the file, with an identifier derived from its contents. Nothing can be
    /// written after that.
    void Finish(int catalogue, int about);

private:
    class Output;
    /// The place of an object: at an offset, or at an index in a pack of objects.
    struct Place {
        std::uint64_t where = 0;
        std::uint16_t index = 0;
        bool isPacked = false;
    };

    Place& At(int number) { return m_places[static_cast<std::size_t>(number) - 1]; }
    void WritePacked(int number, QPDFObjectHandle entries, const std::string& bytes);
    void WriteRaw(int number, QPDFObjectHandle entries, std::size_t length,
                  const Fill& fill);
    void WritePack();
    std::string Places() const;

    std::unique_ptr<Output> m_output;
    std::vector<Place> m_places;  // by number, from 1
    int m_pack = 0;               // the number of the open pack; 0: none
    std::size_t m_packCount = 0;
    std::string m_packNumbers;
    std::string m_packObjects;
};

}  // namespace host

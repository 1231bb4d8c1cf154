#pragma once

#include <concepts>
#include <cstdint>
#include <memory>
#include <string>
#include <type_traits>

namespace Meridax::Utils::Serialization {

class Node;

/// A shared owning pointer to a node; empty means that there is no such node.
using NodePtr = std::shared_ptr<Node>;

/// The types that the value helpers of `Node` turn into text and back.
template <class T>
concept NodeValue =
    std::same_as<T, bool> || std::same_as<T, std::int32_t> || std::same_as<T, double>;

/// One element of a setup document: it has a name, a text value, child elements, attributes, and
/// the key and value entries that the document keeps for it. A control saves and loads itself
/// through this class alone, and the same code runs in both directions.
///
/// Texts are 8-bit. The words in brackets are the checks that an operation makes first, in their
/// order, and what it may give:
///  - document: without a document, `XmlException` 6;
///  - element: without an inner node, `XmlException` 5;
///  - index: a position above 0x7FFFFFFF, `XmlException` 2;
///  - no dummy: an argument that is a dummy node, `XmlException` 13;
///  - may be empty: an empty pointer when there is no such node, which is no error.
class Node {
public:
    Node(const Node&) = delete;
    Node& operator=(const Node&) = delete;
    virtual ~Node();

    /// Lets go of the inner node and of the document; does nothing when one of them is already
    /// gone. [any time]
    virtual void close() = 0;

    /// The child of that name: `addChild` while writing, `readChild` while reading. [document]
    virtual NodePtr getChild(const std::string& name) = 0;

    /// The child of that name, or a dummy node of that name that is attached to nothing.
    /// [document | element]
    virtual NodePtr readChild(const std::string& name) = 0;

    /// A new node that is attached to nothing. [document]
    virtual NodePtr createNode(std::string name, std::string value) = 0;

    /// From here on this node stands for the same element as `other`. [document]
    virtual void assign(NodePtr other) = 0;

    /// From here on this node stands for a new element that is attached to nothing. [document]
    virtual void assignNew(std::string name, std::string value) = 0;

    /// Sets the element's text value. [element]
    virtual void setValue(std::string text) = 0;

    /// Attaches `node` as a child and gives a node for it; a node of another class is copied with
    /// all that is below it. [document | element]
    virtual NodePtr appendChild(const NodePtr& node) = 0;

    /// Creates a child of that name with an empty value. [document | element]
    virtual NodePtr addChild(std::string name) = 0;

    /// A copy of the element; the copy of a dummy is a dummy. [document | element]
    virtual NodePtr clone() = 0;

    /// Attaches `node` as an attribute, as `appendChild` does. [document | element]
    virtual NodePtr appendAttribute(const NodePtr& node) = 0;

    /// Removes all children. [element]
    virtual void clearChildren() = 0;

    /// Removes all attributes. [element]
    virtual void clearAttributes() = 0;

    /// The first child of that name. [document | element | may be empty]
    virtual NodePtr findChild(const std::string& name) const = 0;

    /// The attribute of that name. [document | element | may be empty]
    virtual NodePtr findAttribute(const std::string& name) const = 0;

    /// The attribute at that position, counted from 0; empty from the count on.
    /// [document | element | index | may be empty]
    virtual NodePtr attributeAt(std::uint64_t index) const = 0;

    /// The child at that position, counted from 0; empty from the count on.
    /// [document | element | index | may be empty]
    virtual NodePtr childAt(std::uint64_t index) const = 0;

    /// The number of attributes. [element]
    virtual std::int32_t attributeCount() const = 0;

    /// The number of children. [element]
    virtual std::int32_t childCount() const = 0;

    /// Removes an attribute and empties the caller's pointer. A node of another class is not among
    /// the attributes; the pointer is emptied all the same. [element | no dummy]
    virtual void removeAttribute(NodePtr& node) = 0;

    /// Removes the attribute at that position, if there is one. [element | index]
    virtual void removeAttributeAt(std::uint64_t index) = 0;

    /// Looks the name up among the children, and removes what it finds from the attributes.
    /// [element]
    virtual void removeAttributeNamed(const std::string& name) = 0;

    /// Removes a child and empties the caller's pointer, as `removeAttribute` does.
    /// [element | no dummy]
    virtual void removeChild(NodePtr& node) = 0;

    /// The same as `removeAttributeAt`: it works on the attributes. [element | index]
    virtual void removeChildAt(std::uint64_t index) = 0;

    /// The same as `removeAttributeNamed`: it removes from the attributes. [element]
    virtual void removeChildNamed(const std::string& name) = 0;

    /// The element's name. [element]
    virtual std::string getName() const = 0;

    /// The element's text value. [element]
    virtual std::string getValue() const = 0;

    /// The element above; empty for a root. [document | element | may be empty]
    virtual NodePtr getParent() const = 0;

    /// Sets the direction of the whole document, and so of every node of it. [document]
    virtual void setWriting(bool writing) = 0;

    /// True while the document is being written. [document]
    virtual bool isWriting() const = 0;

    /// True when document and inner node are both there. [any time]
    virtual bool isValid() const = 0;

    /// True without children, without attributes and with an empty value. [document | element]
    virtual bool isEmpty() const = 0;

    /// Stores `value` under `key`; the document may drop a value that equals `defaultValue`.
    /// [document | element]
    virtual void writeValue(const std::string& key, const std::string& value,
                            const std::string& defaultValue) = 0;

    /// Gives the stored text of `key`, or `defaultValue` when nothing is stored.
    /// [document | element]
    virtual void readValue(const std::string& key, std::string& value,
                           const std::string& defaultValue) const = 0;

    /// Creates an attribute with that name and value. [document | element]
    virtual void addAttribute(const std::string& name, const std::string& value) = 0;

    /// The first child of that name, added when there is none. [document | element]
    virtual NodePtr getOrAddChild(const std::string& name) = 0;

    /// True for a node that stands for a child that doesn't exist. [any time]
    bool isDummy() const { return isDummy_; }

    /// Stores the value in every case: its default is its own text with the suffix, which can never
    /// equal it. [document | element]
    template <NodeValue T>
    void write(const std::string& key, T value) {
        const std::string text = textOf(value);
        writeValue(key, text, text + defaultSuffix);
    }

    /// Reads the value; a missing key reads as `defaultValue`. Text without a leading number raises
    /// `XmlException` 0 and a number out of range 4; `value` then keeps what it was. A bool never
    /// fails. [document | element]
    template <NodeValue T>
    void read(const std::string& key, T& value, std::type_identity_t<T> defaultValue = {}) const {
        std::string text;
        readValue(key, text, textOf(defaultValue));
        takeText(text, value);
    }

    /// `write` while the document is being written, otherwise `read`. [document | element]
    template <NodeValue T>
    void readWrite(const std::string& key, T& value) {
        if (isWriting()) {
            write(key, value);
        } else {
            read(key, value);
        }
    }

    /// The same with a default, which is what a missing key reads as and what need not be stored.
    /// [document | element]
    template <NodeValue T>
    void readWrite(const std::string& key, T& value, std::type_identity_t<T> defaultValue) {
        if (isWriting()) {
            writeValue(key, textOf(value), textOf(defaultValue));
        } else {
            read(key, value, defaultValue);
        }
    }

    std::string name;                 ///< reserved; nothing fills or reads it
    std::string defaultSuffix = "#";  ///< makes a default that differs from the value itself

protected:
    explicit Node(bool isDummy = false) : isDummy_(isDummy) {}

private:
    static std::string textOf(bool value);
    static std::string textOf(std::int32_t value);
    static std::string textOf(double value);

    static void takeText(const std::string& text, bool& value);
    static void takeText(const std::string& text, std::int32_t& value);
    static void takeText(const std::string& text, double& value);

    bool isDummy_;
};

}  // namespace Meridax::Utils::Serialization

#pragma once

#include "catalogue/CoordParamKey.h"
#include "catalogue/DictionaryGuard.h"

#include <optional>

class QString;
struct FieldInput;
struct ParamField;
struct ProjectionFields;

/// Edits one parameter record. A change of one key also changes the keys that depend on it by definition, and no other:
/// - transverse Mercator is method 0 with the scale factor 1 and method 1 with any other;
/// - "cutting_radius" follows the semi-major axis, so that the standard parallel stays where it is.
class CoordParamEditor {
public:
    const IDictionary& record() const { return *now.values; }

    /// Starts over with a copy of `record`.
    void setRecord(const IDictionary& record);

    /// Takes over what the user typed into a field. False when that changes nothing: an input that is not valid, or
    /// what the record holds already.
    bool setField(const ParamField& field, const FieldInput& input);

    /// The user begins to type into a field: what type() and cancelTyping() go back to.
    void startTyping() { beforeTyping.assign(now); }

    /// Makes the record what it was before the typing, with what is typed now; with an input that is not valid, exactly
    /// what it was. False when the record was that already. typeText() is for a text, see setText().
    bool type(const ParamField& field, const FieldInput& input);
    bool typeText(const char* key, const QString& text);
    bool cancelTyping();

    /// Takes over name, axis and flattening of an ellipsoid record, with the numbers behind the texts.
    void setEllipsoid(const IDictionary& ellipsoid);

    /// Makes the record a system of that method. Values that the method needs and that the record lacks, or that make
    /// no sense in that method (another method's scale factor, a pole as a cone's origin), get initial values; they
    /// give way to the values that were there before with the next method that those fit, unless they were edited
    /// since. Other methods' values stay in the record.
    void setMethod(ProjectionMethod chosen);

    /// Whether setMethod() gave the field its value, so that the user has yet to choose one.
    bool isToChoose(const ParamField& field) const;

    /// No datum shift, or a seven-parameter one; parameters that are missing then start with 0.
    void setShift(bool sevenParameters);

    /// Reverses the three rotations: from the position-vector to the coordinate-frame convention or back.
    void reverseRotations();

    /// Sets a text that nothing else of the record depends on: a name, a remark. An empty one removes the key. False
    /// when the record held it already.
    bool setText(const char* key, const QString& text);

    /// Takes over every key of `source`, with the numbers behind the texts; the record's other keys stay. When `source`
    /// says which datum shift there is ("_7type"), shift keys, the datum's name and the text that the definition was
    /// read from are removed where it lacks them.
    void replaceValues(const IDictionary& source);

    /// Whether the record differs from the one that was set.
    bool canGoBack() const;

    /// Makes the record the one that was set. goForward() undoes that, as long as nothing was edited since.
    void goBack();
    bool canGoForward() const;
    void goForward();

private:
    struct State {
        DictionaryGuard values; ///< the record

        /// The record without what a method filled in, and with the method that its scale factor was chosen for: what
        /// the next method starts from.
        DictionaryGuard chosen;

        void assign(const State& other);
        bool isSame(const State& other) const;
    };

    template <typename Change> void edit(const Change& change);
    template <typename Change> void editAxis(const Change& change);
    void followAxis(IDictionary& record, std::optional<double> axisBefore, std::optional<double> parallel);
    void followFactor();
    void fillParallel();
    void fill(const ProjectionFields& fields);
    double initialValue(const ProjectionFields& fields, const ParamField& field) const;
    bool makesSense(const ProjectionFields& fields, const ParamField& field) const;

    State now;
    State beforeTyping;
    DictionaryGuard shown; ///< the record that was set
    State undone;          ///< by goBack()
    bool isUndone = false;
};

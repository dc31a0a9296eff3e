#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "core/Dateinummern.h"
#include "core/ElementRecord.h"
#include "core/MessageBoxes.h"

namespace zerna {

/// One chemical element: its tabulated record and the two working values that the current alloy gives it. All numbers
/// are 0 and all texts empty at first. Elements are shared: every component of an alloy that is this element sees the
/// same density and valence.
class clsElement {
public:
    clsElement(Dateinummern& files, MessageBoxes& boxes);

    /// Number of the open binary file that Daten_Lesen and Daten_Speichern use; whoever opened it closes it.
    int Dateinummer() const { return m_dateinummer; }
    void setDateinummer(int number) { m_dateinummer = number; }

    /// Reads one record at the file's position. An error is shown once; the fields read before it stay.
    void Daten_Lesen();

    /// Writes the record at the file's position. An error is shown once.
    void Daten_Speichern();

    const std::string& Elektronenkonfiguration() const { return m_record.Elektronenkonfiguration; }
    void setElektronenkonfiguration(std::string_view text) { m_record.Elektronenkonfiguration = text; }
    std::uint8_t X() const { return m_record.X; }
    void setX(std::uint8_t column) { m_record.X = column; }
    std::uint8_t Y() const { return m_record.Y; }
    void setY(std::uint8_t row) { m_record.Y = row; }
    const std::string& symbol() const { return m_record.symbol; }
    void setsymbol(std::string_view text) { m_record.symbol = text; }
    const std::string& Name() const { return m_record.Name; }
    void setName(std::string_view text) { m_record.Name = text; }
    float Masse() const { return m_record.Masse; } ///< amu
    void setMasse(float amu) { m_record.Masse = amu; }
    std::int16_t OZ() const { return m_record.OZ; }
    void setOZ(std::int16_t atomicNumber) { m_record.OZ = atomicNumber; }
    float Dichte_Fluessig() const { return m_record.Dichte_Fluessig; } ///< g/cm³
    void setDichte_Fluessig(float density) { m_record.Dichte_Fluessig = density; }
    float Dichte_Kristallin() const { return m_record.Dichte_Kristallin; } ///< g/cm³
    void setDichte_Kristallin(float density) { m_record.Dichte_Kristallin = density; }
    float Dichte_Amorph() const { return m_record.Dichte_Amorph; } ///< g/cm³
    void setDichte_Amorph(float density) { m_record.Dichte_Amorph = density; }
    float Elektronegativitaet() const { return m_record.Elektronegativitaet; }
    void setElektronegativitaet(float pauling) { m_record.Elektronegativitaet = pauling; }
    float Ionisierungsenergie() const { return m_record.Ionisierungsenergie; } ///< eV
    void setIonisierungsenergie(float electronvolt) { m_record.Ionisierungsenergie = electronvolt; }
    float Schmelztemperatur() const { return m_record.Schmelztemperatur; } ///< K
    void setSchmelztemperatur(float kelvin) { m_record.Schmelztemperatur = kelvin; }
    float Siedetemperatur() const { return m_record.Siedetemperatur; } ///< K
    void setSiedetemperatur(float kelvin) { m_record.Siedetemperatur = kelvin; }
    float Atomradius() const { return m_record.Atomradius; } ///< pm
    void setAtomradius(float picometres) { m_record.Atomradius = picometres; }

    /// Electrons in subshell `index`, 0 to 17; error 9 for any other index.
    std::uint8_t Elektronen(int index) const;
    void setElektronen(int index, std::uint8_t count);

    const std::string& EGK() const { return m_record.EGK; }
    void setEGK(std::string_view text) { m_record.EGK = text; }

    /// Electrons with orbital quantum number 0 (s) to 3 (f) outside the core; 0 for any other number. Error 6 for a
    /// sum above 255.
    std::uint8_t Orbital_L_Elektronen(int orbital) const;

    float Valenz() const { return m_record.Valenz; } ///< free electrons per atom
    void setValenz(float electrons) { m_record.Valenz = electrons; }

    float Dichte() const { return m_dichte; } ///< g/cm³, chosen for the current alloy; not stored in the file
    void setDichte(float density) { m_dichte = density; }
    const std::string& Valenz_Temp() const { return m_valenzTemp; } ///< the valence as typed, maybe a formula
    void setValenz_Temp(std::string_view text) { m_valenzTemp = text; }

    const ElementRecord& record() const { return m_record; }
    void setRecord(const ElementRecord& record) { m_record = record; }

private:
    ElementRecord m_record;
    int m_dateinummer = 0;
    float m_dichte = 0; // g/cm³
    std::string m_valenzTemp;
    Dateinummern& m_files;
    MessageBoxes& m_boxes;
};

/// The caption of an orbital group: "s-Elektronen" for 0 to "f-Elektronen" for 3, empty for any other number.
std::string_view OrbitalLabel(int orbital);

} // namespace zerna

#pragma once

#include <array>
#include <cmath>
#include <span>

#include "bench/Aufbau.h"
#include "core/Zahlentext.h"
#include "model/rechnung/Konstanten.h"

namespace zerna {

/// The same formulas from ready numbers, without a check anywhere: each quantity by itself, or tightly, with all that
/// several of them share computed once.
class BloesseLegierung {
public:
    using Groessen = std::array<float, 18>;

    struct Component {
        float prozent = 0;
        float masse = 0;
        float dichte = 0;
        float valenz = 0;
    };

    explicit BloesseLegierung(Aufbau& aufbau, int components = MaxKomponenten)
        : m_count(static_cast<std::size_t>(components))
    {
        for (std::size_t i = 0; i < m_count; ++i) {
            const clsElement& element = *aufbau.elements.Item(Aufbau::Symbole.at(i));
            const float valenz = singleFromText(aufbau.parser.Parse(element.Valenz_Temp()));
            m_components.at(i) = {0, element.Masse(), element.Dichte(), valenz};
        }
    }

    void setProzent(std::size_t index, float prozent) { m_components[index].prozent = prozent; }

    void recalculate()
    {
        recalculateBasis();
        m_kf2 = static_cast<float>(m_kf2Factor * std::pow(electrons(), 1.0 / 3.0));
    }

    void recalculateBasis()
    {
        float valenz = 0;
        float molvolumen = 0;
        float dichte = 0;
        for (const Component& c : std::span(m_components).first(m_count)) {
            const double p = c.prozent;
            valenz = static_cast<float>(valenz + c.valenz * p);
            molvolumen = static_cast<float>(molvolumen + p * c.masse / c.dichte);
            dichte = static_cast<float>(dichte + c.dichte * p);
        }
        m_valenz = static_cast<float>(valenz / 100.0);
        m_dichte = static_cast<float>(dichte / 100.0);
        molvolumen = static_cast<float>(molvolumen / 100.0);
        m_teilchen = static_cast<float>(AvogadroProKubikmeter / molvolumen);
    }

    Groessen quantities() const
    {
        return {m_valenz, static_cast<float>(m_teilchen * 1e-27), m_dichte, static_cast<float>(1.0 / m_teilchen),
            static_cast<float>(1 / electrons() * m_hallFactor),
            static_cast<float>(std::pow(electrons(), -2.0 / 3.0) * m_thermoFactor),
            static_cast<float>(m_plasmonFactor * std::sqrt(electrons())), fermi(), m_kf2, wavelength(),
            static_cast<float>(5.0 / 4.0 * wavelength()), static_cast<float>(m_teilchen / 1e27 * m_valenz),
            static_cast<float>(std::pow(5.0 / 4.0 * wavelength(), 3) * m_teilchen * (Pi / 6) * 1e-27),
            static_cast<float>(3.0 / 2.0 * m_valenz / fermi()),
            static_cast<float>(fermi() * ElektronvoltInJoule / m_boltzmann), static_cast<float>(3.0 / 5.0 * fermi()),
            systemEnergy(),
            static_cast<float>(
                m_teilchen * (2.0 / 3.0) * KubiknanometerInKubikmeter * m_valenz * fermi() * ElektronvoltInJoule)};
    }

    /// Of the basis alone.
    Groessen tightQuantities() const
    {
        const double n = electrons();
        const double root = std::cbrt(n);
        const double squared = root * root;
        const double wurzel = std::sqrt(n);
        const auto fermi = static_cast<float>(m_fermiFactor * squared);
        const double joule = fermi * ElektronvoltInJoule;
        const auto kf2 = static_cast<float>(m_kf2Factor * root);
        const auto wavelength = static_cast<float>(2 * Pi / kf2);
        const double radius = 5.0 / 4.0 * wavelength;
        return {m_valenz, static_cast<float>(m_teilchen * 1e-27), m_dichte, static_cast<float>(1.0 / m_teilchen),
            static_cast<float>(1 / n * m_hallFactor), static_cast<float>(1 / squared * m_thermoFactor),
            static_cast<float>(m_plasmonFactor * wurzel), fermi, kf2, wavelength, static_cast<float>(radius),
            static_cast<float>(n * 1e-27), static_cast<float>(radius * radius * radius * m_teilchen * (Pi / 6 * 1e-27)),
            static_cast<float>(3.0 / 2.0 * m_valenz / fermi), static_cast<float>(joule / m_boltzmann),
            static_cast<float>(3.0 / 5.0 * fermi),
            static_cast<float>(joule * joule * std::sqrt(joule) * m_systemFactor),
            static_cast<float>(n * (2.0 / 3.0) * KubiknanometerInKubikmeter * joule)};
    }

private:
    double electrons() const { return static_cast<double>(m_valenz) * m_teilchen; }
    float fermi() const { return static_cast<float>(m_fermiFactor * std::pow(electrons(), 2.0 / 3.0)); }
    float wavelength() const { return static_cast<float>(2 * Pi / m_kf2); }

    float systemEnergy() const
    {
        double c = 2.0 / 5.0 * std::sqrt(2.0) / Pi / Pi;
        c = c / std::pow(m_planck, 3);
        c = std::pow(m_mass, 3.0 / 2.0) * c;
        return static_cast<float>(
            std::pow(fermi() * ElektronvoltInJoule, 5.0 / 2.0) * c * (ElektronvoltInJoule / NanometerInMeter));
    }

    std::size_t m_count;
    std::array<Component, MaxKomponenten> m_components{};
    double m_planck = 1.0545716e-34F;
    double m_mass = 9.109382e-31F;
    double m_boltzmann = 1.38065e-23F;
    double m_charge = 1.6021765e-19F;
    float m_plasmonFactor =
        static_cast<float>(m_charge * m_planck / std::sqrt(static_cast<double>(8.065874e-42F)) / ElektronvoltInJoule);
    float m_kf2Factor = static_cast<float>(2 * std::cbrt(3 * Pi * Pi) * NanometerInMeter);
    float m_fermiFactor =
        static_cast<float>(m_planck * m_planck / 2 / m_mass * std::pow(3 * Pi * Pi, 2.0 / 3.0) / ElektronvoltInJoule);
    float m_thermoFactor = static_cast<float>(
        -2 * m_boltzmann * m_boltzmann * m_mass / (m_planck * m_planck * m_charge * std::pow(3 / Pi, 2.0 / 3.0)));
    float m_hallFactor = static_cast<float>(-1 / m_charge);
    double m_systemFactor = std::pow(m_mass, 3.0 / 2.0) * 2 / 5 * std::sqrt(2.0) / Pi / Pi / std::pow(m_planck, 3)
        * (ElektronvoltInJoule / NanometerInMeter);
    float m_valenz = 0;
    float m_dichte = 0;
    float m_teilchen = 0;
    float m_kf2 = 0;
};

} // namespace zerna

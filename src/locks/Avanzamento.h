#pragma once

namespace vabo {

/// Where a lock tells how far it has come.
class Avanzamento {
public:
    Avanzamento() = default;
    Avanzamento(const Avanzamento&) = delete;
    Avanzamento& operator=(const Avanzamento&) = delete;
    virtual ~Avanzamento() = default;

    /// So much of the whole, from 0 to 1.
    virtual void Porta(double parte) = 0;
    /// From 0, in so many steps.
    virtual void Comincia(long passi) = 0;
    virtual void Avanza() = 0;
};

} // namespace vabo

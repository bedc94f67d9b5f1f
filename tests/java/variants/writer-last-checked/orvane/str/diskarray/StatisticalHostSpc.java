package orvane.str.diskarray;

/** Lacks port, the last field whose failure drops the object. */
public class StatisticalHostSpc {
    public StatisticalHostSpc_Info[] port_absent;
}

package orvane.str.diskarray;

/** Lacks fpc, the last field whose failure drops the object. */
public class StatisticalDriveFpc {
    public StatisticalDriveFpc_Info[] fpc_absent;
}

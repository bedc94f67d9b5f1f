package orvane.str.diskarray;

/** Lacks lu, the last field whose failure drops the object. */
public class StatisticalCommandStatus {
    public StatisticalCommandStatus_Info[] lu_absent;
}

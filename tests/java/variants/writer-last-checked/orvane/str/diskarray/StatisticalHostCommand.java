package orvane.str.diskarray;

/** Lacks lu, the last field whose failure drops the object. */
public class StatisticalHostCommand {
    public StatisticalHostCommand_Info[] lu_absent;
}

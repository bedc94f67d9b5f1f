package orvane.str.diskarray;

/** Lacks write_count, the last field whose failure drops the object. */
public class StatisticalHostCommand_Info {
    public int read_count;
    public int write_count_absent;
}

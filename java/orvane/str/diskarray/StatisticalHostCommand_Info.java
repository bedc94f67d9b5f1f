package orvane.str.diskarray;

public class StatisticalHostCommand_Info {
    public int read_count;
    public int write_count;
}

package orvane.str.diskarray;

public class DMLUInformation {
    public int mode;
    public int dmlu_count;
    public DMLUDetail[] dmlu;
}

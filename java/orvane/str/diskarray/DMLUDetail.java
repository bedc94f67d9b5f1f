package orvane.str.diskarray;

public class DMLUDetail {
    public int dmlu_valid;
    public int set_valid;
    public int dmlu_lu;
}

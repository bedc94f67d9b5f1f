package orvane.str.diskarray;

public class PoolDetailCapa {
    public int pool_no;
    public int poolcapa_h;
    public int poolcapa_l;
}
